#pragma once

#include <functional>
#include <pugixml.hpp>
#include <string>

#include "render/Canvas.h"
#include "render/model/StyleReader.h"

namespace plotsmith::xlsx {
class BookContext;
}

namespace plotsmith::render {

/// The bytes of the picture that a relationship of a drawing leads to; empty if there is none.
using ImageSource = std::function<std::string(const std::string& relationship)>;
/// The pictures of a drawing part.
ImageSource ImagesOf(xlsx::BookContext& book, std::string part);

/// Draws an object of a drawing (sp, cxnSp, grpSp, pic), of a chart's or of a sheet's, in the frame that its
/// anchor gives it. `number` is the object's place in the drawing, from 1. What can't be drawn is noted.
void DrawShapeObject(Canvas& canvas, const Palette& palette, pugi::xml_node object, const Rect& frame,
                     int number, const ImageSource& images = {});

}  // namespace plotsmith::render

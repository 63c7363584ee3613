#pragma once

#include <pugixml.hpp>

#include "render/Canvas.h"
#include "render/model/PictureSource.h"
#include "render/model/StyleReader.h"

namespace plotsmith::render {

/// Draws an object of a drawing (sp, cxnSp, grpSp, pic), of a chart's or of a sheet's, in the frame that its
/// anchor gives it. `number` is the object's place in the drawing, from 1. What can't be drawn is noted.
void DrawShapeObject(Canvas& canvas, const Palette& palette, pugi::xml_node object, const Rect& frame,
                     int number, const ImageSource& images = {});

}  // namespace plotsmith::render

#pragma once

#include <pugixml.hpp>

#include "render/Canvas.h"
#include "render/model/PictureSource.h"
#include "render/model/StyleReader.h"

namespace plotsmith::render {

/// Draws an object (sp, cxnSp, grpSp, pic) of the drawing of a chart or sheet. `frame` is the rectangle of
/// its anchor, and `number` is its number in the drawing, from 1. `images` reads pictures; without it,
/// pictures aren't drawn. Adds a note about everything that can't be drawn.
void DrawShapeObject(Canvas& canvas, const Palette& palette, pugi::xml_node object, const Rect& frame,
                     int number, const ImageSource& images = {});

}  // namespace plotsmith::render

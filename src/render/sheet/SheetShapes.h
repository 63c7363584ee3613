#pragma once

#include <vector>

#include "render/Canvas.h"
#include "render/Drawing.h"

namespace plotsmith::xlsx {
class Workbook;
class Worksheet;
}  // namespace plotsmith::xlsx

namespace plotsmith::render {

/// What is drawn on a sheet, and where, in points from the sheet's corner.
struct DrawnShape {
  Rect place;
  Drawing drawing;
  Point corner;  ///< of the drawing; a shape that is turned, or has a thick line, sticks out of its place
};

/// All charts and shapes of a sheet, from back to front.
std::vector<DrawnShape> DrawShapes(xlsx::Workbook& book, xlsx::Worksheet& sheet, const TextMeasure& measure,
                                   Notes& notes);

}  // namespace plotsmith::render

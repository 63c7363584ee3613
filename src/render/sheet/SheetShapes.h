#pragma once

#include <vector>

#include "render/Canvas.h"
#include "render/Drawing.h"

namespace plotsmith::xlsx {
class Workbook;
class Worksheet;
}  // namespace plotsmith::xlsx

namespace plotsmith::render {

/// A chart or shape on a sheet. Positions are in points from the top left corner of the sheet.
struct DrawnShape {
  Rect place;       ///< The rectangle of the anchor.
  Drawing drawing;  ///< The picture. It extends beyond `place` if the shape is rotated or has a thick line.
  Point corner;     ///< The top left corner of the picture.
};

/// Draws all charts and shapes of a sheet, and returns them from back to front. Adds a sentence to `notes`
/// about everything that isn't drawn.
std::vector<DrawnShape> DrawShapes(xlsx::Workbook& book, xlsx::Worksheet& sheet, const TextMeasure& measure,
                                   Notes& notes);

}  // namespace plotsmith::render

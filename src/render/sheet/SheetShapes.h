#pragma once

#include <vector>

#include "render/Canvas.h"
#include "render/Drawing.h"

namespace plotsmith::xlsx {
class Workbook;
class Worksheet;
}  // namespace plotsmith::xlsx

namespace plotsmith::render {

/// A chart or shape on a sheet. Places are in points from the top left corner of the sheet.
struct DrawnShape {
  Rect place;       ///< rectangle of its anchor
  Drawing drawing;  ///< may extend beyond `place` if the shape is turned or has a thick line
  Point corner;     ///< top left corner of the drawing
};

/// Draws all charts and shapes of a sheet, and returns them from back to front. What isn't drawn is added to
/// `notes`.
std::vector<DrawnShape> DrawShapes(xlsx::Workbook& book, xlsx::Worksheet& sheet, const TextMeasure& measure,
                                   Notes& notes);

}  // namespace plotsmith::render

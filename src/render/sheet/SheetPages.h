#pragma once

#include <vector>

#include "render/Drawing.h"
#include "render/TextMeasure.h"
#include "render/chart/ChartDrawing.h"

namespace plotsmith::xlsx {
class Workbook;
struct SheetEntry;
}  // namespace plotsmith::xlsx

namespace plotsmith::render {

/// The kinds of pages on which a sheet can be drawn.
enum class Paper {
  kPrinted,  ///< Pages with the size and the margins of the page setup.
  kOne,      ///< One page as large as the contents of the sheet, up to 200 inches.
};

/// Draws the pages of a sheet with its cells, charts and shapes. A chart sheet has one page, an empty sheet
/// none. If a sheet has more than a hundred pages, the first hundred are drawn. Adds a sentence to `notes`
/// about everything that isn't drawn. Raises error 1004 if the sheet can't be read.
std::vector<Drawing> DrawSheet(xlsx::Workbook& book, const xlsx::SheetEntry& sheet, Paper paper,
                               const TextMeasure& measure, Notes& notes);

}  // namespace plotsmith::render

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

/// What a sheet is drawn on.
enum class Paper {
  kPrinted,  ///< pages of the size that the sheet's setup says, between its margins
  kOne,      ///< one page that is as large as what the sheet shows, up to 200 inches
};

/// The pages of a sheet, with its cells and what is drawn on them. A chart sheet is one page. Of a sheet with
/// more than a hundred pages the first hundred are drawn, and an empty sheet has none. A sheet that can't be
/// read is error 1004.
std::vector<Drawing> DrawSheet(xlsx::Workbook& book, const xlsx::SheetEntry& sheet, Paper paper,
                               const TextMeasure& measure, Notes& notes);

}  // namespace plotsmith::render

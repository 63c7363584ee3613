#pragma once

#include <vector>

#include "render/ChartDrawing.h"
#include "render/Drawing.h"
#include "render/TextMeasure.h"

namespace plotsmith::xlsx {
class Workbook;
struct SheetEntry;
}  // namespace plotsmith::xlsx

namespace plotsmith::render {

/// The pages of a sheet as it would be printed, each of the paper's size, with its cells and what is drawn on
/// them. A chart sheet is one page. Of a sheet with more than a hundred pages the first hundred are drawn,
/// and an empty sheet has none. A sheet that can't be read is error 1004.
std::vector<Drawing> DrawSheet(xlsx::Workbook& book, const xlsx::SheetEntry& sheet,
                               const TextMeasure& measure, Notes& notes);

}  // namespace plotsmith::render

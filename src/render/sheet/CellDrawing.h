#pragma once

#include "render/Canvas.h"
#include "render/sheet/SheetReader.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::render {

/// Draws the cells of a page: fills, texts, borders and, with `gridLines`, grid lines. Positions are in
/// points from the top left corner of the sheet.
void DrawCells(SheetReader& sheet, const xlsx::CellRange& page, bool gridLines, Canvas& canvas);

/// Returns the column, from 1, in which the text of the last cell of a row ends. A long text extends over the
/// empty cells to the right.
std::int32_t LastColumnOfText(SheetReader& sheet, std::int32_t row, std::int32_t column,
                              const TextMeasure& measure);

}  // namespace plotsmith::render

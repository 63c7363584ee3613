#pragma once

#include "render/Canvas.h"
#include "render/sheet/SheetReader.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::render {

/// Draws the cells of a page: grid lines if they are wanted, fillings, texts and borders. Places are points
/// from the sheet's corner.
void DrawCells(SheetReader& sheet, const xlsx::CellRange& page, bool gridLines, Canvas& canvas);

/// The column in which the text of a row's last cell ends, as it goes over the empty cells behind it; the
/// cell's own column if the text doesn't.
std::int32_t LastColumnOfText(SheetReader& sheet, std::int32_t row, std::int32_t column,
                              const TextMeasure& measure);

}  // namespace plotsmith::render

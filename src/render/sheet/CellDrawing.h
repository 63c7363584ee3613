#pragma once

#include "render/Canvas.h"
#include "render/sheet/SheetReader.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::render {

/// Draws the cells of a page: grid lines if they are wanted, fillings, texts and borders. Places are points
/// from the sheet's corner.
void DrawCells(SheetReader& sheet, const xlsx::CellRange& page, bool gridLines, Canvas& canvas);

}  // namespace plotsmith::render

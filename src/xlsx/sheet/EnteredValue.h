#pragma once

#include "runtime/Variant.h"
#include "xlsx/numberformat/DateSystem.h"
#include "xlsx/sheet/CellGrid.h"

namespace plotsmith::xlsx {

/// What a cell holds after a value was put into it, as if it was typed: a text that reads as a number, a
/// percentage, a logical value or an error value becomes that; a leading apostrophe makes any text a text. So
/// do dates and formulas stay, which this host doesn't read.
/// A Date becomes the serial of the workbook's system. The style is left alone. Error 1004 for what a cell
/// can't hold.
void EnterValue(GridCell& cell, const runtime::Variant& value, DateSystem dates);

}  // namespace plotsmith::xlsx

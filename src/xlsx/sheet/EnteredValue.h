#pragma once

#include "runtime/Variant.h"
#include "xlsx/numberformat/DateSystem.h"
#include "xlsx/sheet/CellGrid.h"

namespace plotsmith::xlsx {

/// Puts a value into a cell as if it were typed. A text that looks like a number, a percentage, a logical
/// value or an error value becomes that value. After a leading apostrophe it stays a text. Texts that look
/// like dates or formulas stay texts too, because this host doesn't read them. A Date becomes the serial
/// number of the workbook's date system. The style of the cell doesn't change. Raises error 1004 for a value
/// that a cell can't contain.
void EnterValue(GridCell& cell, const runtime::Variant& value, DateSystem dates);

}  // namespace plotsmith::xlsx

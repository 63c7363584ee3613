#pragma once

#include <string>
#include <string_view>

#include "xlsx/sheet/RowShifts.h"

namespace plotsmith::xlsx {

/// Adjusts the formulas of a sheet to rows that were moved on other sheets: formulas of cells, conditional
/// formats, data validation and sparklines. All other bytes stay the same. A shared formula that changes
/// becomes a formula of each of its cells. `part` is UTF-8, `home` is the sheet's name, and `followed` is the
/// mark that its formulas have followed so far. Returns true if anything changed.
bool ShiftSheetFormulas(std::string& part, std::string_view home, const RowShifts& shifts,
                        std::size_t followed = 0);

}  // namespace plotsmith::xlsx

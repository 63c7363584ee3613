#pragma once

#include <string>
#include <string_view>

#include "xlsx/sheet/RowShifts.h"

namespace plotsmith::xlsx {

/// Brings the formulas of a sheet's part up to date with rows that moved on other sheets: those of cells, of
/// conditional formats, of data validation and of sparklines. Only the formulas concerned change, all else
/// stays byte for byte; a formula that several cells share becomes each cell's own. `part` is UTF-8; `home`
/// is the sheet's name, `followed` the mark up to which its formulas have followed before. True if anything
/// changed.
bool ShiftSheetFormulas(std::string& part, std::string_view home, const RowShifts& shifts,
                        std::size_t followed = 0);

}  // namespace plotsmith::xlsx

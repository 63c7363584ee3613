#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/excel/Worksheet.h"
#include "runtime/Variant.h"

namespace plotsmith {

// The reads of one cell; rows and columns count from 1. A failed read is "" for a text and 0 for a number.

/// The cell as `lKind` says, one of the constants of namespace `cell`.
runtime::Variant GetCellValue(excel::Worksheet& oSheet, std::int32_t lRow, std::int32_t lColumn,
                              std::int32_t lKind);
/// The displayed text, without a Variant for loops over many cells. The view is into the sheet or `sScratch`.
std::string_view GetCellText(excel::Worksheet& oSheet, std::int32_t lRow, std::int32_t lColumn,
                             std::string& sScratch);
/// The number, without a Variant. A text that reads as a number is that number, other texts are 0.
double GetCellDouble(excel::Worksheet& oSheet, std::int32_t lRow, std::int32_t lColumn);

}  // namespace plotsmith

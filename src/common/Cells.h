#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/excel/Worksheet.h"
#include "runtime/Variant.h"

/// @file
/// Functions that read one cell. Rows and columns count from 1. A failed read gives "" for a text and 0 for a
/// number.
namespace plotsmith {

/// Returns the cell in the form `lKind`, a constant of namespace `cell`.
runtime::Variant GetCellValue(excel::Worksheet& oSheet, std::int32_t lRow, std::int32_t lColumn,
                              std::int32_t lKind);
/// Returns the displayed text without a Variant, for loops over many cells. The view refers to the sheet or
/// to `sScratch`.
std::string_view GetCellText(excel::Worksheet& oSheet, std::int32_t lRow, std::int32_t lColumn,
                             std::string& sScratch);
/// Returns the number without a Variant. A text that looks like a number counts as that number, other texts
/// as 0.
double GetCellDouble(excel::Worksheet& oSheet, std::int32_t lRow, std::int32_t lColumn);

}  // namespace plotsmith

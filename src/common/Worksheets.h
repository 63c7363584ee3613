#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/excel/Worksheet.h"
#include "runtime/Ref.h"

namespace plotsmith {

/// Returns True if `oWorkbook` has a sheet with the name, ignoring case.
bool SheetExists(std::string_view sName);
/// Returns True if `oWorkbook` has a worksheet with the name that isn't hidden. A very hidden sheet counts as
/// visible.
bool SheetIsVisible(std::string_view sName);
/// Adds a worksheet before the first sheet (`lPosition` 0), after the last one (1) or at the host's default
/// position. `lVisible` is a member of XlSheetVisibility; the active sheet changes only for a visible one.
/// Returns False, and leaves no sheet, if the host refuses.
bool CreateSheet(const std::string& sName, std::int32_t lPosition, std::int32_t lVisible);
/// Deletes a row, counted from 1. Returns False if the host refuses.
bool DeleteSheetRow(const runtime::Ref<excel::Worksheet>& oSheet, std::int32_t lRow);
/// Inserts an empty row, counted from 1. An error is reported and not passed on.
void InsertSheetRow(const runtime::Ref<excel::Worksheet>& oSheet, std::int32_t lRow);
/// Returns the sheet of `oWorkbook` with the name. Raises error 13 if it has no cells, and error 9 if it
/// doesn't exist.
runtime::Ref<excel::Worksheet> SheetWithCells(std::string_view sName);

}  // namespace plotsmith

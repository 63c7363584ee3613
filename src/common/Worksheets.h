#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "host/excel/Worksheet.h"
#include "runtime/Ref.h"

namespace plotsmith {

/// Whether `oWorkbook` has a sheet of the name, ignoring case.
bool SheetExists(std::string_view sName);
/// Whether `oWorkbook` has a worksheet of the name that isn't hidden. A very hidden sheet counts as visible.
bool SheetIsVisible(std::string_view sName);
/// Adds a worksheet before the first sheet (`lPosition` 0), after the last (1) or where the host puts it.
/// `lVisible` is a member of XlSheetVisibility; the active sheet changes only for a visible one. False if the
/// host refuses; no sheet is left behind then.
bool CreateSheet(const std::string& sName, std::int32_t lPosition, std::int32_t lVisible);
/// Deletes a row, from 1. False if the host refuses.
bool DeleteSheetRow(const runtime::Ref<excel::Worksheet>& oSheet, std::int32_t lRow);
/// Inserts an empty row, from 1. An error is reported and ends here.
void InsertSheetRow(const runtime::Ref<excel::Worksheet>& oSheet, std::int32_t lRow);
/// The sheet of `oWorkbook` of the name; error 13 if it has no cells, error 9 if there is none.
runtime::Ref<excel::Worksheet> SheetWithCells(std::string_view sName);

}  // namespace plotsmith

#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "xlsx/sheet/Reference.h"

/// Changes to a sheet's part as text: what is concerned is replaced or put in, and all else stays byte for
/// byte. The text is UTF-8.
namespace plotsmith::xlsx {

/// Puts other cells into the sheet. `sheetData` makes the element from the prefix of the part's elements.
void ReplaceSheetData(std::string& part,
                      const std::function<std::string(const std::string& prefix)>& sheetData,
                      const CellRange& used);

/// Names the sheet's drawing, at the place that the schema wants (CT_Worksheet). `relationships` is the
/// address of the relationships' namespace.
void InsertDrawingLink(std::string& part, std::string_view relationships, std::string_view id);

/// Marks the sheet's tab as one of those selected, or not; false if it is so already. The sheet's first view
/// counts, which is that of the workbook's first window.
bool SelectTab(std::string& part, bool selected);

}  // namespace plotsmith::xlsx

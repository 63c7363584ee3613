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

/// A boolean attribute of a sheet's view (CT_SheetView).
struct ViewSetting {
  std::string_view name;
  bool ifAbsent;  ///< its value where the attribute, or the view, is absent
};
inline constexpr ViewSetting kTabSelected = {"tabSelected", false};
inline constexpr ViewSetting kShowGridLines = {"showGridLines", true};
inline constexpr ViewSetting kShowHeadings = {"showRowColHeaders", true};

/// Changes a setting of the sheet's first view, which is that of the workbook's first window. Returns false,
/// and leaves the part alone, if the setting has the value already. Throws PackageError for a part without a
/// view in which there is no place for one.
bool SetViewSetting(std::string& part, const ViewSetting& setting, bool value);

}  // namespace plotsmith::xlsx

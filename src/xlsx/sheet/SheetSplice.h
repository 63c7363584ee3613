#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "xlsx/sheet/Reference.h"

/// Changes to a sheet's part as text: single elements are replaced or inserted, and all other bytes stay the
/// same. The text is UTF-8.
namespace plotsmith::xlsx {

/// Replaces the cells of a sheet's part. `sheetData` makes the element, with the prefix of the part's
/// elements. `used` is the new range of the `dimension` element, if the part has one.
void ReplaceSheetData(std::string& part,
                      const std::function<std::string(const std::string& prefix)>& sheetData,
                      const CellRange& used);

/// Replaces the `drawing` elements by one element at its place in the schema (CT_Worksheet). `relationships`
/// is the URI of the relationships' namespace, and `id` is the id of the relationship.
void SetDrawingLink(std::string& part, std::string_view relationships, std::string_view id);

/// A Boolean attribute of a sheet's view (CT_SheetView).
struct ViewSetting {
  std::string_view name;  ///< The name of the attribute.
  bool ifAbsent;          ///< The value if the attribute or the view is absent.
};
/// The settings that the host changes.
///@{
inline constexpr ViewSetting kTabSelected = {"tabSelected", false};
inline constexpr ViewSetting kShowGridLines = {"showGridLines", true};
inline constexpr ViewSetting kShowHeadings = {"showRowColHeaders", true};
///@}

/// Changes a setting of the sheet's first view, the view of the workbook's first window. Returns false if the
/// setting already has the value; the part then stays the same. Throws PackageError if the part has no view
/// and no place for one.
bool SetViewSetting(std::string& part, const ViewSetting& setting, bool value);

}  // namespace plotsmith::xlsx

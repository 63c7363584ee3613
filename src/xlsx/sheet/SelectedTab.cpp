#include "xlsx/sheet/SelectedTab.h"

#include <map>

#include "xlsx/package/Package.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/Xml.h"
#include "xlsx/sheet/SheetSplice.h"
#include "xlsx/sheet/SheetView.h"

namespace plotsmith::xlsx {
namespace {

/// Returns true if the tab of a sheet is selected. A sheet whose view can't be read isn't selected.
bool IsSelected(const Package& package, const std::string& sheet) {
  try {
    return ReadSheetView(*package.Stream(sheet)).selected;
  } catch (const PackageError&) {
    return false;
  }
}

}  // namespace

bool SelectOnlyTab(Package& package, const std::vector<std::string>& sheets, const std::string& selected) {
  std::map<std::string, std::string> changed;  // the new texts, by part
  for (const std::string& sheet : sheets) {
    const bool select = sheet == selected;
    if (IsSelected(package, sheet) == select) continue;
    try {
      std::string text = xml::ToUtf8(package.Read(sheet));
      if (SetViewSetting(text, kTabSelected, select)) changed[sheet] = std::move(text);
    } catch (const PackageError&) {
      if (!select) return false;  // The active tab needs no attribute.
    }
  }
  for (auto& [sheet, text] : changed) package.Replace(sheet, std::move(text));
  return true;
}

}  // namespace plotsmith::xlsx

#include "xlsx/sheet/SelectedTab.h"

#include "xlsx/package/Package.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/Xml.h"
#include "xlsx/sheet/SheetSplice.h"

namespace plotsmith::xlsx {
namespace {

/// Returns true if a sheet's head may mention a selected tab. Only the head is read, because a sheet may be
/// large.
bool MayBeSelected(const Package& package, const std::string& sheet) {
  std::string head(64 * 1024, '\0');
  const auto stream = package.Stream(sheet);
  std::size_t size = 0;
  while (const std::size_t count = stream->Read(head.data() + size, head.size() - size)) size += count;
  head.resize(size);
  return xml::NeedsConversion(head) || head.find(kTabSelected.name) != std::string::npos;
}

}  // namespace

void SelectOnlyTab(Package& package, const std::vector<std::string>& sheets, const std::string& selected) {
  for (const std::string& sheet : sheets) {
    try {
      if (sheet != selected && !MayBeSelected(package, sheet)) continue;
      std::string text = xml::ToUtf8(package.Read(sheet));
      if (SetViewSetting(text, kTabSelected, sheet == selected)) package.Replace(sheet, std::move(text));
    } catch (const PackageError&) {
      // An unreadable sheet stays as it is.
    }
  }
}

}  // namespace plotsmith::xlsx

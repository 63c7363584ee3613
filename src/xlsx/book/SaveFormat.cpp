#include "xlsx/book/SaveFormat.h"

#include <algorithm>

#include "xlsx/package/Package.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/WorkbookKind.h"

namespace plotsmith::xlsx {
namespace {

bool HasMacros(const Package& package) {
  const auto parts = package.Parts();
  return std::any_of(parts.begin(), parts.end(),
                     [&](const std::string& part) { return HoldsMacros(package.ContentType(part)); });
}

}  // namespace

SaveFormat::SaveFormat(const std::string& openedPath) : extension_(ExtensionOf(openedPath)) {}

const WorkbookKind* SaveFormat::OtherKind(const std::string& path) const {
  return ExtensionOf(path) == extension_ ? nullptr : KindOfName(path);
}

void SaveFormat::Check(const Package& package, const std::string& path) const {
  if (IsForeignName(path)) {
    throw PackageError("a workbook can't be written as " + ExtensionOf(path) +
                       ", only as .xlsx, .xlsm, .xltx or .xltm");
  }
  const WorkbookKind* kind = OtherKind(path);
  if (kind != nullptr && !kind->macros && HasMacros(package)) {
    throw PackageError("the workbook has macros, which a file with the extension " +
                       std::string(kind->extension) + " can't contain; use .xlsm");
  }
}

}  // namespace plotsmith::xlsx

#pragma once

#include <string>
#include <string_view>

#include "xlsx/package/PackageError.h"

namespace plotsmith::xlsx {

/// A kind of workbook file. The kinds differ in the content type of the workbook part and in whether macros
/// may be in the file; Excel opens no file whose content type doesn't fit its extension.
struct WorkbookKind {
  std::string_view extension;    ///< ".xlsx"
  std::string_view contentType;  ///< of the workbook part
  bool macros;                   ///< the file may hold macros
};

/// The kind that a file of the name must be, ignoring case; null if the extension belongs to none.
const WorkbookKind* KindOfName(std::string_view path);
/// Whether a part of the content type holds macros.
bool HoldsMacros(std::string_view contentType);
/// Whether the extension of the name belongs to a format of tables that isn't written here.
bool IsForeignName(std::string_view path);
/// The extension with its point, in lower case; empty if the name has none.
std::string ExtensionOf(std::string_view path);

/// Throws a PackageError that says why, if the file can't be opened or its first bytes are not those of a zip
/// archive.
void CheckFile(const std::string& path);
/// That a file is of another format ("an OpenDocument spreadsheet (.ods)"), and what can be read.
PackageError OtherFormat(const std::string& format);

}  // namespace plotsmith::xlsx

#pragma once

#include <string>
#include <string_view>

#include "xlsx/package/PackageError.h"

namespace plotsmith::xlsx {

/// A kind of workbook file. The kinds differ in the content type of the workbook part, and some may contain
/// macros. Excel opens a file only if its content type matches its extension.
struct WorkbookKind {
  std::string_view extension;    ///< ".xlsx"
  std::string_view contentType;  ///< The content type of the workbook part.
  bool macros;                   ///< Whether the file may contain macros.
};

/// Returns the kind for the extension of a file name, without regard to case; null if there is none.
const WorkbookKind* KindOfName(std::string_view path);
/// Returns true if a part with the content type contains macros.
bool HoldsMacros(std::string_view contentType);
/// Returns true if the extension belongs to another format that spreadsheet programs write, such as ".ods",
/// ".txt" or ".pdf".
bool IsForeignName(std::string_view path);
/// Returns the extension with its dot, in lower case; empty if there is none.
std::string ExtensionOf(std::string_view path);

/// Throws a PackageError with the reason if the file can't be opened or doesn't begin like a zip file.
void CheckFile(const std::string& path);
/// Returns an error that names the format of a file ("an OpenDocument spreadsheet (.ods)") and the formats
/// that can be read.
PackageError OtherFormat(const std::string& format);

}  // namespace plotsmith::xlsx

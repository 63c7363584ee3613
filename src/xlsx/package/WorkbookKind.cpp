#include "xlsx/package/WorkbookKind.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "runtime/Ascii.h"
#include "runtime/SystemErrors.h"
#include "runtime/Utf8Path.h"
#include "xlsx/package/Namespaces.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::array<WorkbookKind, 5> kKinds = {{
    {".xlsx", content_type::kWorkbook, false},
    {".xlsm", "application/vnd.ms-excel.sheet.macroEnabled.main+xml", true},
    {".xltx", "application/vnd.openxmlformats-officedocument.spreadsheetml.template.main+xml", false},
    {".xltm", "application/vnd.ms-excel.template.macroEnabled.main+xml", true},
    {".xlam", "application/vnd.ms-excel.addin.macroEnabled.main+xml", true},
}};

/// Content types of VBA projects and of Excel 4 macro sheets.
constexpr std::array<std::string_view, 3> kMacroTypes = {"application/vnd.ms-office.vbaProject",
                                                         "application/vnd.ms-excel.macrosheet+xml",
                                                         "application/vnd.ms-excel.intlmacrosheet+xml"};

/// The other formats that Excel, LibreOffice and Numbers write.
constexpr std::array<std::string_view, 20> kForeignExtensions = {
    ".xls", ".xlt", ".xlsb", ".xlw", ".ods", ".ots", ".fods", ".csv", ".txt", ".tsv",
    ".prn", ".dif", ".slk",  ".dbf", ".xml", ".htm", ".html", ".pdf", ".xps", ".numbers"};

/// A kind of text file and the text by which its beginning is recognized.
struct TextKind {
  std::string_view mark;
  const char* format;
};
constexpr std::array<TextKind, 3> kTextKinds = {{
    {"urn:oasis:names:tc:opendocument", "an OpenDocument spreadsheet of plain XML (.fods)"},
    {"urn:schemas-microsoft-com:office:spreadsheet", "an XML spreadsheet of Excel 2003 (.xml)"},
    {"<html", "a web page (.html)"},
}};

constexpr std::string_view kCompoundFile = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";
constexpr std::string_view kZipEntry = "PK\x03\x04";
constexpr std::size_t kStart = 4 * 1024;

/// Throws the error for a compound file, which is a workbook from before 2007 or one with a password.
[[noreturn]] void ThrowCompoundKind(const std::string& start, std::istream& file) {
  std::string name;
  for (const char c : std::string_view("EncryptedPackage")) name.append({c, '\0'});
  // The directory may be anywhere in the file.
  const std::string rest((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  const bool encrypted = start.find(name) != std::string::npos || rest.find(name) != std::string::npos;
  if (encrypted) throw PackageError("it is encrypted with a password");
  throw OtherFormat("a workbook of Excel 97-2003 (.xls)");
}

const char* FormatOfText(const std::string& start) {
  const std::string folded = ascii::Lower(start);
  for (const TextKind& kind : kTextKinds) {
    if (folded.find(kind.mark) != std::string::npos) return kind.format;
  }
  return "a text file, such as .csv";
}

void CheckCanBeOpened(const std::string& path) {
  std::error_code error;
  const auto status = std::filesystem::status(runtime::PathOf(path), error);
  if (status.type() == std::filesystem::file_type::not_found) throw PackageError("there is no such file");
  if (std::filesystem::is_directory(status)) throw PackageError("it is a folder");
  if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
    throw PackageError("it is not a regular file");
  }
  if (std::ifstream(runtime::PathOf(path))) return;
  const int reason = error ? error.value() : errno;
  if (reason == EACCES) throw PackageError("you have no permission to read it");
  throw PackageError(std::string("it can't be opened: ") + runtime::SystemErrorText(reason));
}

}  // namespace

std::string ExtensionOf(std::string_view path) {
  return ascii::Lower(runtime::Utf8Of(runtime::PathOf(path).extension()));
}

const WorkbookKind* KindOfName(std::string_view path) {
  const std::string extension = ExtensionOf(path);
  const auto found = std::find_if(kKinds.begin(), kKinds.end(),
                                  [&](const WorkbookKind& kind) { return kind.extension == extension; });
  return found == kKinds.end() ? nullptr : &*found;
}

bool HoldsMacros(std::string_view contentType) {
  return std::find(kMacroTypes.begin(), kMacroTypes.end(), contentType) != kMacroTypes.end();
}

bool IsForeignName(std::string_view path) {
  return std::find(kForeignExtensions.begin(), kForeignExtensions.end(), ExtensionOf(path)) !=
         kForeignExtensions.end();
}

PackageError OtherFormat(const std::string& format) {
  return PackageError("it is " + format +
                      "; save it as .xlsx first, because only .xlsx, .xlsm, .xltx and .xltm can be read");
}

void CheckFile(const std::string& path) {
  CheckCanBeOpened(path);
  std::ifstream file(runtime::PathOf(path), std::ios::binary);
  std::string start(kStart, '\0');
  file.read(start.data(), static_cast<std::streamsize>(start.size()));
  start.resize(static_cast<std::size_t>(file.gcount()));
  if (start.empty()) throw PackageError("it is empty");
  if (start.starts_with(kCompoundFile)) ThrowCompoundKind(start, file);
  const bool isText = start.find('\0') == std::string::npos;
  if (isText && !start.starts_with(kZipEntry)) throw OtherFormat(FormatOfText(start));
}

}  // namespace plotsmith::xlsx

// Extracts seeds for the fuzzers from workbooks. Usage: make_seeds FOLDER WORKBOOK...

#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "xlsx/package/Package.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/Xml.h"

namespace {

namespace fs = std::filesystem;
constexpr std::size_t kLargest = 64 * 1024;  // Larger seeds slow a fuzzer down.

void Write(const fs::path& folder, std::size_t number, const std::string& bytes) {
  if (bytes.size() > kLargest) return;
  fs::create_directories(folder);
  std::ofstream(folder / std::to_string(number), std::ios::binary) << bytes;
}

/// Converts the inline texts of a sheet to shared strings, which not every workbook has.
std::string AsSharedStrings(const std::string& sheet) {
  std::string part = "<sst>";
  for (auto from = sheet.find("<is>"); from != std::string::npos; from = sheet.find("<is>", from)) {
    const auto to = sheet.find("</is>", from);
    if (to == std::string::npos) break;
    part += "<si>" + sheet.substr(from + 4, to - from - 4) + "</si>";
    from = to;
  }
  return part + "</sst>";
}

/// Writes the texts of all elements of a kind, for targets that don't read XML.
void WriteTexts(const fs::path& folder, std::size_t& number, const std::string& part,
                const std::string& element, const char* attribute) {
  for (auto at = part.find("<" + element); at != std::string::npos; at = part.find("<" + element, at + 1)) {
    const auto from = attribute == nullptr ? part.find('>', at) + 1
                                           : part.find(attribute, at) + std::string(attribute).size();
    const auto to = part.find_first_of(attribute == nullptr ? "<" : "\"", from);
    if (to != std::string::npos && to > from) {
      Write(folder, ++number, plotsmith::xlsx::xml::Decode(part.substr(from, to - from)));
    }
  }
}

/// Writes random choices for the wizard target.
void WriteRandomChoices(const fs::path& folder) {
  std::minstd_rand random(1);
  for (std::size_t number = 1; number <= 60; ++number) {
    std::string bytes(40 * number, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    Write(folder, number, bytes);
  }
}

}  // namespace

int main(int argc, char** argv) {
  const fs::path folder = argc > 1 ? argv[1] : "";
  std::size_t number = 0;
  WriteRandomChoices(folder / "wizard");
  for (int i = 2; i < argc; ++i) {
    std::ifstream file(argv[i], std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(file)), {});
    Write(folder / "package", ++number, bytes);
    Write(folder / "workbook", number, bytes);
    try {
      const auto package = plotsmith::xlsx::Package::Open(argv[i]);
      for (const std::string& part : package.Parts()) {
        const std::string type = package.ContentType(part);
        std::string text;
        try {
          text = package.Read(part);
        } catch (const plotsmith::xlsx::PackageError&) {
          continue;
        }
        const auto is = [&](const char* what) { return type.find(what) != std::string::npos; };
        if (is("worksheet+xml")) {
          Write(folder / "sheet", ++number, text);
          Write(folder / "shared-strings", number, AsSharedStrings(text));
        }
        if (is("sharedStrings+xml")) Write(folder / "shared-strings", ++number, text);
        if (is("styles+xml")) Write(folder / "styles", ++number, text);
        if (is("drawing+xml")) Write(folder / "drawing", ++number, text);
        if (is("chartshapes+xml")) Write(folder / "chart-shapes", ++number, text);
        if (is("chart+xml")) Write(folder / "chart", ++number, text);
        WriteTexts(folder / "formula", number, text, "c:f>", nullptr);
        WriteTexts(folder / "formula", number, text, "f>", nullptr);
        WriteTexts(folder / "formula", number, text, "definedName", nullptr);
        WriteTexts(folder / "number-format", number, text, "numFmt", "formatCode=\"");
        WriteTexts(folder / "definition", number, text, "t xml:space=\"preserve\">&lt;chart", nullptr);
      }
    } catch (const plotsmith::xlsx::PackageError&) {
      // A workbook that can't be opened is also a seed.
    }
  }
  return 0;
}

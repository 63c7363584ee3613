#include "cli/check/Words.h"

#include "runtime/Strings.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::cli {
namespace {

/// UTF-16 units of a text that a sentence quotes.
constexpr std::size_t kLongest = 60;

}  // namespace

std::string Quoted(std::string_view text) {
  std::string line =
      runtime::Len(text) <= kLongest ? std::string(text) : runtime::Mid(text, 1, kLongest) + "...";
  for (char& c : line) {
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  }
  return "'" + line + "'";
}

std::string Listed(const std::vector<std::string>& items, const char* word, const char* none) {
  if (items.empty()) return none;
  std::string text = items.front();
  for (std::size_t i = 1; i < items.size(); ++i) {
    text += i + 1 < items.size() ? ", " + items[i] : std::string(" ") + word + " " + items[i];
  }
  return text;
}

std::string Counted(std::size_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string CellText(std::string_view sheet, std::int32_t row, std::int32_t column) {
  return xlsx::QuotedSheetName(sheet) + "!" + xlsx::CellAddress(row, column, false);
}

}  // namespace plotsmith::cli

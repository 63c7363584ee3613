#include "cli/check/Words.h"

#include <algorithm>
#include <cctype>
#include <utility>

#include "runtime/Ascii.h"
#include "runtime/Strings.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::cli {
namespace {

/// The maximum number of UTF-16 units of a quoted text.
constexpr std::size_t kLongest = 60;
/// The maximum number of items in a list.
constexpr std::size_t kMostItems = 40;

}  // namespace

std::string OneLine(std::string text) {
  for (char& c : text) {
    if (static_cast<unsigned char>(c) < ' ') c = ' ';
  }
  return text;
}

std::string Quoted(std::string_view text) {
  if (runtime::Len(text) <= kLongest) return "'" + OneLine(std::string(text)) + "'";
  return "'" + OneLine(std::string(runtime::Left(text, kLongest))) + "...'";
}

std::string ShellWord(const std::string& text) {
  const bool isPlain = !text.empty() && std::all_of(text.begin(), text.end(), [](unsigned char c) {
    return std::isalnum(c) != 0 || c == '_' || c == '-' || c == '.' || c >= 0x80;
  });
  return isPlain ? text : "'" + runtime::Replace(OneLine(text), "'", "'\\''") + "'";
}

std::string Listed(const std::vector<std::string>& items, const char* word) {
  if (items.empty()) return "none";
  const std::size_t shown = std::min(items.size(), kMostItems), left = items.size() - shown;
  const std::string last = std::string(" ") + word + " ";
  std::string text = items.front();
  for (std::size_t i = 1; i < shown; ++i) text += (i + 1 == items.size() ? last : ", ") + items[i];
  text = OneLine(std::move(text));
  return left == 0 ? text : text + last + std::to_string(left) + " more";
}

std::string ThereAre(const std::vector<std::string>& items) {
  return (items.size() == 1 ? "there is " : "there are ") + Listed(items);
}

std::string ChartOf(const std::string& type) { return (type == "area" ? "an " : "a ") + type + " chart"; }

std::string Capitalized(std::string sentence) {
  if (!sentence.empty()) sentence.front() = ascii::Upper(sentence.front());
  return sentence;
}

std::string Counted(std::size_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

const char* ForCount(std::size_t count, const char* one, const char* several) {
  return count == 1 ? one : several;
}

std::string CellText(std::string_view sheet, std::int32_t row, std::int32_t column) {
  return xlsx::QuotedSheetName(sheet) + "!" + xlsx::CellAddress(row, column);
}

}  // namespace plotsmith::cli

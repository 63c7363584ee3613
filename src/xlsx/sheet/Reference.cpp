#include "xlsx/sheet/Reference.h"

#include <algorithm>
#include <charconv>

#include "runtime/Ascii.h"
#include "runtime/Strings.h"
#include "xlsx/base/Limits.h"

namespace plotsmith::xlsx {
namespace {

using ascii::IsDigit;
using ascii::IsLetter;

std::optional<std::int32_t> WholeNumber(std::string_view digits) {
  std::int32_t value = 0;
  const auto [end, status] = std::from_chars(digits.begin(), digits.end(), value);
  if (digits.empty() || status != std::errc() || end != digits.end()) return std::nullopt;
  return value;
}

/// Returns the number of the column with the letters, or 0 if it is outside of the sheet.
std::int32_t ColumnNumber(std::string_view letters) {
  if (letters.size() > 3) return 0;
  std::int32_t column = 0;
  for (const char c : letters) column = column * 26 + ((c & ~0x20) - 'A' + 1);
  return column <= limits::kColumns ? column : 0;
}

struct ReadCornerResult {
  Corner corner;
  std::size_t length;  ///< of its text
};

/// Reads the corner at the beginning of the text.
std::optional<ReadCornerResult> ReadCorner(std::string_view text) {
  Corner corner;
  std::size_t i = 0;
  const auto at = [&](std::size_t p) { return p < text.size() ? text[p] : '\0'; };
  bool dollar = at(i) == '$';
  if (dollar) ++i;
  std::size_t start = i;
  while (IsLetter(at(i))) ++i;
  if (i > start) {
    corner.column = ColumnNumber(text.substr(start, i - start));
    if (corner.column == 0) return std::nullopt;
    corner.columnAbsolute = dollar;
    dollar = at(i) == '$' && IsDigit(at(i + 1));
    if (dollar) ++i;
  }
  start = i;
  while (IsDigit(at(i))) ++i;
  if (i > start) {
    const auto row = WholeNumber(text.substr(start, i - start));
    if (!row || *row < 1 || *row > limits::kRows) return std::nullopt;
    corner.row = *row;
    corner.rowAbsolute = dollar;
  }
  if (corner.row == 0 && corner.column == 0) return std::nullopt;
  return ReadCornerResult{corner, i};
}

std::string CornerText(const Corner& corner) {
  std::string text = (corner.columnAbsolute ? "$" : "") + ColumnLetters(corner.column);
  if (corner.row > 0) text += (corner.rowAbsolute ? "$" : "") + std::to_string(corner.row);
  return text;
}

/// Returns true for "R", "C12", "RC3" and similar names, which are references even without numbers.
bool ReadsAsR1C1(std::string_view name) {
  const auto take = [&](char letter) {
    if (name.empty() || ascii::Lower(name[0]) != letter) return;
    name.remove_prefix(1);
    while (!name.empty() && IsDigit(name[0])) name.remove_prefix(1);
  };
  take('r');
  take('c');
  return name.empty();
}

}  // namespace

bool IsNameCharacter(char c) {
  return IsLetter(c) || IsDigit(c) || c == '_' || c == '.' || c == '\\' || c == '?' ||
         static_cast<unsigned char>(c) >= 0x80;
}

std::string A1Reference::Text() const { return CornerText(first) + (range ? ":" + CornerText(second) : ""); }

std::optional<A1Reference> ReadA1Reference(std::string_view text) {
  const auto first = ReadCorner(text);
  if (!first) return std::nullopt;
  A1Reference reference{first->corner, first->corner, false, first->length};
  if (text.substr(first->length).starts_with(':')) {
    const auto second = ReadCorner(text.substr(first->length + 1));
    const bool matches = second && (second->corner.row > 0) == (first->corner.row > 0) &&
                         (second->corner.column > 0) == (first->corner.column > 0);
    if (matches) {
      reference.second = second->corner;
      reference.length += 1 + second->length;
      reference.range = true;
    }
  }
  const bool cell = first->corner.row > 0 && first->corner.column > 0;
  if (!reference.range && !cell) return std::nullopt;
  // "A1B", "A1(" and "A1.x" are names or functions, "A1!" is a sheet
  const char next = reference.length < text.size() ? text[reference.length] : '\0';
  if (IsNameCharacter(next) || next == '(' || next == '!' || next == '$') return std::nullopt;
  return reference;
}

std::string ColumnLetters(std::int32_t column) {
  std::string letters;
  for (; column > 0; column = (column - 1) / 26) {
    letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % 26));
  }
  return letters;
}

std::string CellAddress(std::int32_t row, std::int32_t column) {
  return ColumnLetters(column) + std::to_string(row);
}

std::string RangeAddress(const CellRange& range) {
  if (range.column1 == 1 && range.column2 == limits::kColumns)
    return "$" + std::to_string(range.row1) + ":$" + std::to_string(range.row2);
  if (range.row1 == 1 && range.row2 == limits::kRows)
    return "$" + ColumnLetters(range.column1) + ":$" + ColumnLetters(range.column2);
  const auto absolute = [](std::int32_t row, std::int32_t column) {
    return "$" + ColumnLetters(column) + "$" + std::to_string(row);
  };
  const std::string first = absolute(range.row1, range.column1);
  return range.CellCount() > 1 ? first + ":" + absolute(range.row2, range.column2) : first;
}

std::string QuotedSheetName(std::string_view name) {
  bool plain = !name.empty() && !IsDigit(name[0]) && name[0] != '.';
  for (std::size_t i = 0; plain && i < name.size();) {
    const char32_t c = runtime::NextCharacter(name, i);
    plain = c < 0x80 ? IsLetter(static_cast<char>(c)) || IsDigit(static_cast<char>(c)) || c == '_' || c == '.'
                     : runtime::IsLetter(c);
  }
  // A name that looks like a reference needs quotes, too.
  if (plain && !ReadA1Reference(name) && !ReadsAsR1C1(name)) return std::string(name);
  return runtime::InQuotes(name, '\'');
}

std::string SheetRangeAddress(const SheetRange& range) {
  return QuotedSheetName(range.sheet) + "!" + RangeAddress(range.range);
}

std::optional<CellRange> ParseA1(std::string_view text) {
  const auto reference = ReadA1Reference(text);
  if (!reference || reference->length != text.size()) return std::nullopt;
  const auto [row1, row2] = std::minmax(reference->first.row, reference->second.row);
  const auto [column1, column2] = std::minmax(reference->first.column, reference->second.column);
  CellRange range{row1, column1, row2, column2};
  if (range.row1 == 0) range.row1 = 1, range.row2 = limits::kRows;
  if (range.column1 == 0) range.column1 = 1, range.column2 = limits::kColumns;
  return range;
}

std::optional<CellRange> ParseR1C1(std::string_view text) {
  const auto corner = [](std::string_view part) -> std::optional<std::pair<std::int32_t, std::int32_t>> {
    if (part.empty() || (part[0] != 'R' && part[0] != 'r')) return std::nullopt;
    const auto c = part.find_first_of("Cc");
    if (c == std::string_view::npos) return std::nullopt;
    const auto row = WholeNumber(part.substr(1, c - 1)), column = WholeNumber(part.substr(c + 1));
    if (!row || !column || *row < 1 || *row > limits::kRows || *column < 1 || *column > limits::kColumns) {
      return std::nullopt;
    }
    return std::pair{*row, *column};
  };
  const auto colon = text.find(':');
  const auto first = corner(text.substr(0, colon));
  const auto second = colon == std::string_view::npos ? first : corner(text.substr(colon + 1));
  if (!first || !second) return std::nullopt;
  return CellRange{std::min(first->first, second->first), std::min(first->second, second->second),
                   std::max(first->first, second->first), std::max(first->second, second->second)};
}

std::optional<SheetRange> ParseSheetRange(std::string_view text) {
  SheetRange result;
  if (text.starts_with('\'')) {
    result.sheet = runtime::TakeQuoted(text);
  } else {
    result.sheet = text.substr(0, text.find('!'));
    text.remove_prefix(result.sheet.size());
  }
  if (!text.starts_with('!') || result.sheet.empty()) return std::nullopt;
  const std::string_view address = text.substr(1);
  auto range = ParseA1(address);
  if (!range) range = ParseR1C1(address);
  if (!range) return std::nullopt;
  result.range = *range;
  return result;
}

}  // namespace plotsmith::xlsx

#include "xlsx/Reference.h"

#include <algorithm>
#include <charconv>

#include "runtime/Strings.h"
#include "xlsx/Limits.h"

namespace plotsmith::xlsx {
namespace {

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
/// What a name, a function or a sheet's name without quotes can consist of; all beyond ASCII belongs there.
bool IsNameCharacter(char c) {
  return IsLetter(c) || IsDigit(c) || c == '_' || c == '.' || c == '\\' || c == '?' ||
         static_cast<unsigned char>(c) >= 0x80;
}

std::optional<std::int32_t> WholeNumber(std::string_view digits) {
  std::int32_t value = 0;
  const auto [end, status] = std::from_chars(digits.begin(), digits.end(), value);
  if (digits.empty() || status != std::errc() || end != digits.end()) return std::nullopt;
  return value;
}

/// One corner of an A1 reference: a cell, or only a column, or only a row (the other number is 0).
struct Corner {
  std::int32_t row = 0, column = 0;
  bool rowAbsolute = false, columnAbsolute = false;
  std::size_t length = 0;  ///< of its text

  bool IsCell() const { return row > 0 && column > 0; }
};

/// The corner that the text begins with.
std::optional<Corner> ReadCorner(std::string_view text) {
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
    dollar = at(i) == '$';
    if (dollar && !IsDigit(at(i + 1))) dollar = false;
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
  corner.length = i;
  return corner;
}

std::string CornerText(const Corner& corner) {
  std::string text;
  if (corner.column > 0) text += (corner.columnAbsolute ? "$" : "") + ColumnLetters(corner.column);
  if (corner.row > 0) text += (corner.rowAbsolute ? "$" : "") + std::to_string(corner.row);
  return text;
}

/// The two corners of an A1 reference that the text begins with; the second is like the first for one cell.
struct Reference {
  Corner first, second;
  std::size_t length = 0;
  bool range = false;
};

std::optional<Reference> ReadReference(std::string_view text) {
  const auto first = ReadCorner(text);
  if (!first) return std::nullopt;
  Reference reference{*first, *first, first->length, false};
  if (text.substr(first->length).starts_with(':')) {
    const auto second = ReadCorner(text.substr(first->length + 1));
    const bool matches =
        second && (second->row > 0) == (first->row > 0) && (second->column > 0) == (first->column > 0);
    if (matches) {
      reference.second = *second;
      reference.length += 1 + second->length;
      reference.range = true;
    }
  }
  if (!reference.range && !first->IsCell()) return std::nullopt;
  // "A1B", "A1(" and "A1.x" are names or functions, "A1!" is a sheet
  const char next = reference.length < text.size() ? text[reference.length] : '\0';
  if (IsNameCharacter(next) || next == '(' || next == '!' || next == '$') return std::nullopt;
  return reference;
}

/// Where a span of rows lies after the change; nothing if it is gone.
std::optional<std::pair<std::int32_t, std::int32_t>> ShiftSpan(std::int32_t first, std::int32_t last,
                                                               std::int32_t row, std::int32_t count) {
  if (count >= 0) {
    if (first >= row) first += count;
    if (last >= row) last += count;
    if (first > limits::kRows) return std::nullopt;
    return std::pair{first, std::min(last, limits::kRows)};
  }
  const std::int32_t gone = -count, behind = row + gone;  // rows from `row` to before `behind` go
  if (first >= row && last < behind) return std::nullopt;
  if (first >= behind) {
    first -= gone;
  } else if (first > row) {
    first = row;
  }
  if (last >= behind) {
    last -= gone;
  } else if (last >= row) {
    last = row - 1;
  }
  return std::pair{first, last};
}

}  // namespace

std::int32_t ColumnNumber(std::string_view letters) {
  if (letters.empty() || letters.size() > 3) return 0;
  std::int32_t column = 0;
  for (char c : letters) {
    if (!IsLetter(c)) return 0;
    column = column * 26 + ((c & ~0x20) - 'A' + 1);
  }
  return column <= limits::kColumns ? column : 0;
}

std::string ColumnLetters(std::int32_t column) {
  std::string letters;
  for (; column > 0; column = (column - 1) / 26) {
    letters.insert(letters.begin(), static_cast<char>('A' + (column - 1) % 26));
  }
  return letters;
}

std::string CellAddress(std::int32_t row, std::int32_t column, bool absolute) {
  const char* dollar = absolute ? "$" : "";
  return dollar + ColumnLetters(column) + dollar + std::to_string(row);
}

std::string RangeAddress(const CellRange& range) {
  std::string address = CellAddress(range.row1, range.column1);
  if (range.CellCount() > 1) address += ":" + CellAddress(range.row2, range.column2);
  return address;
}

std::string QuotedSheetName(std::string_view name) {
  const bool plain =
      !name.empty() && !IsDigit(name[0]) && name[0] != '.' && name[0] != '?' &&
      std::all_of(name.begin(), name.end(), [](char c) { return IsNameCharacter(c) && c != '\\'; });
  // a name that reads as a reference needs quotes too
  const bool reference = ReadReference(name).has_value() || ParseR1C1(name).has_value() ||
                         runtime::EqualsIgnoreCase(name, "R") || runtime::EqualsIgnoreCase(name, "C");
  if (plain && !reference) return std::string(name);
  return "'" + runtime::Replace(name, "'", "''") + "'";
}

std::string SheetRangeAddress(const SheetRange& range) {
  return QuotedSheetName(range.sheet) + "!" + RangeAddress(range.range);
}

std::optional<CellRange> ParseA1(std::string_view text) {
  const auto reference = ReadReference(text);
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
  std::size_t i = 0;
  if (text.starts_with('\'')) {
    for (i = 1; i < text.size(); ++i) {
      if (text[i] != '\'') {
        result.sheet += text[i];
      } else if (i + 1 < text.size() && text[i + 1] == '\'') {
        result.sheet += text[i++];
      } else {
        break;
      }
    }
    ++i;
  } else {
    i = text.find('!');
    if (i == std::string_view::npos) return std::nullopt;
    result.sheet = text.substr(0, i);
  }
  if (i >= text.size() || text[i] != '!' || result.sheet.empty()) return std::nullopt;
  const std::string_view address = text.substr(i + 1);
  auto range = ParseA1(address);
  if (!range) range = ParseR1C1(address);
  if (!range) return std::nullopt;
  result.range = *range;
  return result;
}

std::optional<std::string> ShiftRows(std::string_view formula, std::string_view sheet, bool home,
                                     std::int32_t row, std::int32_t count) {
  std::string shifted;
  bool changed = false;
  std::size_t i = 0;
  // whether the reference at hand points into the sheet: by default it does if the formula stands there
  bool here = home;
  const auto copy = [&](std::size_t length) {
    shifted.append(formula.substr(i, length));
    i += length;
  };
  while (i < formula.size()) {
    const char c = formula[i];
    if (c == '"') {  // a text
      auto end = formula.find('"', i + 1);
      copy(end == std::string_view::npos ? formula.size() - i : end + 1 - i);
      here = home;
    } else if (c == '\'') {  // a quoted sheet, perhaps of another book, or two sheets with a colon
      std::string name;
      std::size_t j = i + 1;
      for (; j < formula.size(); ++j) {
        if (formula[j] != '\'') {
          name += formula[j];
        } else if (j + 1 < formula.size() && formula[j + 1] == '\'') {
          name += formula[j++];
        } else {
          break;
        }
      }
      copy(std::min(j + 1, formula.size()) - i);
      if (i < formula.size() && formula[i] == '!') copy(1);
      here = runtime::EqualsIgnoreCase(name, sheet);
    } else if (c == '[') {  // columns of a table, or the number of another book
      int depth = 0;
      std::size_t j = i;
      for (; j < formula.size(); ++j) {
        if (formula[j] == '\'' && depth > 0) {
          ++j;
        } else if (formula[j] == '[') {
          ++depth;
        } else if (formula[j] == ']' && --depth == 0) {
          break;
        }
      }
      copy(std::min(j + 1, formula.size()) - i);
      // "[1]Sheet1!A1": what follows is elsewhere
      std::size_t k = i;
      while (k < formula.size() && IsNameCharacter(formula[k])) ++k;
      if (k < formula.size() && formula[k] == '!') {
        copy(k + 1 - i);
        here = false;
      }
    } else if (c == '$' || IsNameCharacter(c)) {
      const auto reference = ReadReference(formula.substr(i));
      if (reference) {
        const bool rows = reference->first.row > 0;
        const auto span = rows ? ShiftSpan(std::min(reference->first.row, reference->second.row),
                                           std::max(reference->first.row, reference->second.row), row, count)
                               : std::nullopt;
        const bool ascending = reference->first.row <= reference->second.row;
        if (!here || !rows) {
          copy(reference->length);
        } else if (!span) {
          shifted += "#REF!";
          changed = true;
          i += reference->length;
        } else {
          Corner first = reference->first, second = reference->second;
          first.row = ascending ? span->first : span->second;
          second.row = ascending ? span->second : span->first;
          changed |= first.row != reference->first.row || second.row != reference->second.row;
          shifted += CornerText(first);
          if (reference->range) shifted += ":" + CornerText(second);
          i += reference->length;
        }
        here = home;
        continue;
      }
      std::size_t j = i;
      while (j < formula.size() && (IsNameCharacter(formula[j]) || formula[j] == '$')) ++j;
      if (j == i) j = i + 1;
      // "Sheet1!" or, over several sheets, "Sheet1:Sheet3!", whose references keep their rows
      const bool several = j < formula.size() && formula[j] == ':';
      std::size_t k = j;
      if (several) {
        for (k = j + 1; k < formula.size() && IsNameCharacter(formula[k]);) ++k;
      }
      if (k < formula.size() && formula[k] == '!') {
        here = !several && runtime::EqualsIgnoreCase(formula.substr(i, j - i), sheet);
        copy(k + 1 - i);
      } else {
        copy(j - i);
        here = home;
      }
    } else {
      copy(1);
      if (c != '#') here = home;
    }
  }
  if (!changed) return std::nullopt;
  return shifted;
}

}  // namespace plotsmith::xlsx

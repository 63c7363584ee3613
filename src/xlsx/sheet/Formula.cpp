#include "xlsx/sheet/Formula.h"

#include <algorithm>
#include <utility>

#include "runtime/Strings.h"
#include "xlsx/base/Limits.h"

namespace plotsmith::xlsx {
namespace {

constexpr std::string_view kLost = "#REF!";

/// Returns the position of a span of rows after the change; absent if all of its rows are deleted.
std::optional<std::pair<std::int32_t, std::int32_t>> ShiftSpan(std::int32_t first, std::int32_t last,
                                                               std::int32_t row, std::int32_t count) {
  if (count >= 0) {
    const auto moved = [&](std::int32_t at) {
      return at < row ? at
                      : std::min<std::int64_t>(std::int64_t{at} + count, limits::kRows + std::int64_t{1});
    };
    if (moved(first) > limits::kRows) return std::nullopt;
    return std::pair{static_cast<std::int32_t>(moved(first)),
                     static_cast<std::int32_t>(std::min<std::int64_t>(moved(last), limits::kRows))};
  }
  const std::int32_t gone = -count, behind = row + gone;  // deletes rows from `row` to before `behind`
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

/// Moves a reference. Returns false if its cells are deleted.
bool Shift(A1Reference& reference, std::int32_t row, std::int32_t count) {
  const bool ascending = reference.first.row <= reference.second.row;
  std::int32_t& low = ascending ? reference.first.row : reference.second.row;
  std::int32_t& high = ascending ? reference.second.row : reference.first.row;
  if (low == 1 && high == limits::kRows) return true;  // an entire column, written as a range of rows
  const auto span = ShiftSpan(low, high, row, count);
  if (!span) return false;
  low = span->first;
  high = span->second;
  return true;
}

}  // namespace

// A text that is too long can't be the name of a sheet.
void FormulaReader::PointTo(std::string sheet, bool elsewhere) {
  place_ = elsewhere || runtime::Len(sheet) > limits::kSheetName ? Place::kElsewhere : Place::kSheet;
  sheet_ = place_ == Place::kSheet ? std::move(sheet) : std::string();
}

FormulaReader::Piece FormulaReader::Take(std::size_t length) {
  Piece piece;
  piece.text = rest_.substr(0, length);
  rest_.remove_prefix(piece.text.size());
  return piece;
}

/// Reads a name in quotes. A sheet of another workbook ('[1]Sheet') and a pair of sheets with a colon don't
/// count as names of a sheet.
FormulaReader::Piece FormulaReader::TakeQuoted() {
  std::string_view behind = rest_;
  std::string name = runtime::TakeQuoted(behind);
  if (behind.starts_with('!')) behind.remove_prefix(1);
  const bool elsewhere = name.find_first_of("[:") != std::string::npos;
  PointTo(std::move(name), elsewhere);
  return Take(rest_.size() - behind.size());
}

/// Reads the columns of a table, or the number of another workbook with the sheet after it.
FormulaReader::Piece FormulaReader::TakeBracketed() {
  int depth = 0;
  std::size_t i = 0;
  for (; i < rest_.size(); ++i) {
    if (rest_[i] == '\'' && depth > 0) {
      ++i;  // The next character is literal.
    } else if (rest_[i] == '[') {
      ++depth;
    } else if (rest_[i] == ']' && --depth == 0) {
      break;
    }
  }
  i = std::min(i + 1, rest_.size());
  std::size_t sheetEnd = i;
  while (sheetEnd < rest_.size() && IsNameCharacter(rest_[sheetEnd])) ++sheetEnd;
  if (sheetEnd == rest_.size() || rest_[sheetEnd] != '!') return Take(i);
  place_ = Place::kElsewhere;
  return Take(sheetEnd + 1);
}

/// Reads a reference, a sheet with its "!", or any other word.
FormulaReader::Piece FormulaReader::TakeName() {
  if (auto reference = ReadA1Reference(rest_)) {
    Piece piece = Take(reference->length);
    piece.reference = reference;
    piece.place = std::exchange(place_, Place::kHome);
    piece.sheet = std::exchange(sheet_, {});
    if (rest_.starts_with(':')) corner_ = piece;
    return piece;
  }
  place_ = Place::kHome;
  std::size_t end = 0;
  while (end < rest_.size() && (IsNameCharacter(rest_[end]) || rest_[end] == '$')) ++end;
  const bool several = end < rest_.size() && rest_[end] == ':';
  std::size_t sheetEnd = end;
  if (several) {
    for (++sheetEnd; sheetEnd < rest_.size() && IsNameCharacter(rest_[sheetEnd]);) ++sheetEnd;
  }
  if (sheetEnd == rest_.size() || rest_[sheetEnd] != '!') return Take(std::max<std::size_t>(end, 1));
  PointTo(std::string(rest_.substr(0, end)), several);
  return Take(sheetEnd + 1);
}

std::optional<FormulaReader::Piece> FormulaReader::Next() {
  if (rest_.empty()) return std::nullopt;
  const char c = rest_[0];
  if (c == '\'') return TakeQuoted();
  if (c == '[') return TakeBracketed();
  if (c == '$' || IsNameCharacter(c)) return TakeName();
  place_ = Place::kHome;
  if (c == ':' && corner_) {
    place_ = corner_->place;
    sheet_ = corner_->sheet;
    corner_.reset();
  }
  if (c != '"') return Take(1);
  const auto end = rest_.find('"', 1);
  return Take(end == std::string_view::npos ? rest_.size() : end + 1);
}

std::optional<std::string> ShiftRows(std::string_view formula, std::string_view home,
                                     const ShiftsOf& shiftsOf) {
  std::string shifted;
  bool changed = false;
  FormulaReader reader(formula);
  while (auto piece = reader.Next()) {
    bool touched = false, lost = false;
    if (piece->reference && piece->reference->first.row > 0 &&
        piece->place != FormulaReader::Place::kElsewhere) {
      const std::string_view sheet = piece->place == FormulaReader::Place::kSheet ? piece->sheet : home;
      for (const RowShift& shift : shiftsOf(sheet)) {
        touched = true;
        lost = !Shift(*piece->reference, shift.row, shift.count);
        if (lost) break;
      }
    }
    if (!touched) {
      shifted += piece->text;
      continue;
    }
    const std::string text = lost ? std::string(kLost) : piece->reference->Text();
    changed |= text != piece->text;
    shifted += text;
  }
  if (!changed) return std::nullopt;
  return shifted;
}

std::string OffsetFormula(std::string_view formula, std::int32_t rows, std::int32_t columns) {
  std::string moved;
  FormulaReader reader(formula);
  while (auto piece = reader.Next()) {
    if (!piece->reference) {
      moved += piece->text;
      continue;
    }
    bool lost = false;
    const auto move = [&](std::int32_t& at, bool absolute, std::int32_t by, std::int32_t most) {
      if (at == 0 || absolute) return;  // entire rows have column 0, entire columns row 0
      at += by;
      lost |= at < 1 || at > most;
    };
    for (Corner* corner : {&piece->reference->first, &piece->reference->second}) {
      move(corner->row, corner->rowAbsolute, rows, limits::kRows);
      move(corner->column, corner->columnAbsolute, columns, limits::kColumns);
    }
    moved += lost ? std::string(kLost) : piece->reference->Text();
  }
  return moved;
}

}  // namespace plotsmith::xlsx

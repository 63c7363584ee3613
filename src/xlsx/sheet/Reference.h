#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace plotsmith::xlsx {

/// One cell of a sheet; both numbers from 1.
struct CellPlace {
  std::int32_t row = 0, column = 0;
  bool operator==(const CellPlace&) const = default;
};

/// A rectangle of cells: rows and columns from 1, both ends inside.
struct CellRange {
  std::int32_t row1 = 1, column1 = 1, row2 = 1, column2 = 1;

  std::int32_t RowCount() const { return row2 - row1 + 1; }
  std::int32_t ColumnCount() const { return column2 - column1 + 1; }
  std::int64_t CellCount() const { return std::int64_t{RowCount()} * ColumnCount(); }
  bool operator==(const CellRange&) const = default;
};

/// A rectangle on a named sheet.
struct SheetRange {
  std::string sheet;
  CellRange range;
};

/// "A" is 1; 0 for what is no column of a sheet.
std::int32_t ColumnNumber(std::string_view letters);
std::string ColumnLetters(std::int32_t column);
/// "$A$1", or "A1".
std::string CellAddress(std::int32_t row, std::int32_t column, bool absolute = true);
/// "$A$1", "$A$1:$B$2" for more than one cell, "$1:$2" for whole rows, "$A:$B" for whole columns.
std::string RangeAddress(const CellRange& range);
/// The sheet's name as a formula writes it, in quotes where it needs them.
std::string QuotedSheetName(std::string_view name);
/// The way back: the name in quotes that the text begins with, which moves behind them.
std::string TakeQuotedSheetName(std::string_view& text);
/// "Sheet1!$A$1:$B$2".
std::string SheetRangeAddress(const SheetRange& range);

/// A1 style, with or without dollars: a cell, a range, whole rows ("1:5") or whole columns ("A:C").
std::optional<CellRange> ParseA1(std::string_view text);
/// R1C1 style, absolute: "R6C2", "R6C2:R17C2".
std::optional<CellRange> ParseR1C1(std::string_view text);
/// A sheet, "!", and a range in either style; without the "=". The sheet's name comes back without its
/// quotes.
std::optional<SheetRange> ParseSheetRange(std::string_view text);

/// One corner of a reference in A1 style: a cell or, where one of the numbers is 0, only a row or a column.
struct Corner {
  std::int32_t row = 0, column = 0;
  bool rowAbsolute = false, columnAbsolute = false;
};

/// A reference as a formula writes it: one corner, or two with a colon, in the order that they were written
/// in.
struct A1Reference {
  Corner first, second;  ///< alike for a single cell
  bool range = false;
  std::size_t length = 0;  ///< of its text

  std::string Text() const;
};

/// The reference that a text begins with, without a sheet.
std::optional<A1Reference> ReadA1Reference(std::string_view text);

/// What the name of a thing in a formula can consist of (of a function, a name, a sheet without quotes).
bool IsNameCharacter(char c);

}  // namespace plotsmith::xlsx

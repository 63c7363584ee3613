#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace plotsmith::xlsx {

/// A cell of a sheet. Row and column count from 1.
struct CellPlace {
  /// The numbers of the row and the column.
  std::int32_t row = 0, column = 0;
  bool operator==(const CellPlace&) const = default;
};

/// A rectangle of cells. Rows and columns count from 1, and both ends belong to it.
struct CellRange {
  /// The first and the last row and column.
  std::int32_t row1 = 1, column1 = 1, row2 = 1, column2 = 1;

  /// Returns true if a cell is in the rectangle.
  bool Contains(const CellPlace& cell) const {
    return cell.row >= row1 && cell.row <= row2 && cell.column >= column1 && cell.column <= column2;
  }
  /// Number of rows.
  std::int32_t RowCount() const { return row2 - row1 + 1; }
  /// Number of columns.
  std::int32_t ColumnCount() const { return column2 - column1 + 1; }
  /// Number of cells.
  std::int64_t CellCount() const { return std::int64_t{RowCount()} * ColumnCount(); }
  bool operator==(const CellRange&) const = default;
};

/// A rectangle on a named sheet.
struct SheetRange {
  std::string sheet;  ///< The name of the sheet, without quotes.
  CellRange range;    ///< The cells.
};

/// Returns the letters of a column, from 1.
std::string ColumnLetters(std::int32_t column);
/// Returns the address of a cell without dollar signs, such as "C5".
std::string CellAddress(std::int32_t row, std::int32_t column);
/// Returns "$A$1" for one cell, "$A$1:$B$2" for several cells, "$1:$2" for whole rows, or "$A:$B" for whole
/// columns.
std::string RangeAddress(const CellRange& range);
/// Returns the name of a sheet as a formula writes it, in quotes if necessary.
std::string QuotedSheetName(std::string_view name);
/// Returns a text such as "Sheet1!$A$1:$B$2".
std::string SheetRangeAddress(const SheetRange& range);

/// Reads a reference in A1 style, with or without dollars: a cell, a range, whole rows ("1:5") or whole
/// columns ("A:C").
std::optional<CellRange> ParseA1(std::string_view text);
/// Reads an absolute reference in R1C1 style: "R6C2", "R6C2:R17C2".
std::optional<CellRange> ParseR1C1(std::string_view text);
/// Reads a sheet, "!", and a range in either style, without a "=". The name of the sheet is returned without
/// quotes.
std::optional<SheetRange> ParseSheetRange(std::string_view text);

/// One corner of a reference in A1 style: a cell, or only a row or a column if the other number is 0.
struct Corner {
  /// The numbers of the row and the column, from 1.
  std::int32_t row = 0, column = 0;
  /// Whether a dollar sign precedes the number or the letters.
  bool rowAbsolute = false, columnAbsolute = false;
};

/// A reference as a formula writes it: one corner, or two with a colon, in the written order.
struct A1Reference {
  /// The corners in the written order. They are equal for a single cell.
  Corner first, second;
  bool range = false;      ///< Whether it has two corners.
  std::size_t length = 0;  ///< The length of its text.

  /// Returns the reference as a formula writes it.
  std::string Text() const;
};

/// Reads the reference at the start of a text, without a sheet.
std::optional<A1Reference> ReadA1Reference(std::string_view text);

/// Returns true if names in formulas can contain the character: functions, defined names, sheets without
/// quotes.
bool IsNameCharacter(char c);

}  // namespace plotsmith::xlsx

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace plotsmith::xlsx {

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
/// "$A$1", or "$A$1:$B$2" for more than one cell.
std::string RangeAddress(const CellRange& range);
/// The sheet's name as a formula writes it, in quotes where it needs them.
std::string QuotedSheetName(std::string_view name);
/// "Sheet1!$A$1:$B$2".
std::string SheetRangeAddress(const SheetRange& range);

/// A1 style, with or without dollars: a cell, a range, whole rows ("1:5") or whole columns ("A:C").
std::optional<CellRange> ParseA1(std::string_view text);
/// R1C1 style, absolute: "R6C2", "R6C2:R17C2".
std::optional<CellRange> ParseR1C1(std::string_view text);
/// A sheet, "!", and a range in either style; without the "=". The sheet's name comes back without its
/// quotes.
std::optional<SheetRange> ParseSheetRange(std::string_view text);

/// A formula in which references into one sheet follow when rows of it are inserted or deleted: `count` rows
/// at `row` (negative: deleted). `home` says whether the formula stands on that sheet, so that references
/// without a sheet mean it too. Nothing if the formula stays as it is. What is deleted whole becomes #REF!.
std::optional<std::string> ShiftRows(std::string_view formula, std::string_view sheet, bool home,
                                     std::int32_t row, std::int32_t count);

}  // namespace plotsmith::xlsx

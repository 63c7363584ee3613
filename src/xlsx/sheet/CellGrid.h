#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/excel/CellValue.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::xlsx {

/// A cell of a CellGrid.
struct GridCell {
  excel::CellValue::Kind kind = excel::CellValue::Kind::kEmpty;  ///< The kind of the value.
  double number = 0;        ///< The value of a number; 1 or 0 of a Boolean.
  std::string text;         ///< The text of a text or an error value.
  std::uint32_t style = 0;  ///< An index into cellXfs.

  /// Returns true if the cell has neither a value nor a style.
  bool IsBlank() const { return kind == excel::CellValue::Kind::kEmpty && style == 0; }
};

/// The cells of a sheet that is written to, by row, so that rows can be inserted and deleted. Rows and
/// columns count from 1.
class CellGrid {
 public:
  /// Raises error 1004 if a sheet has too many cells to be written to. A row counts up to its last cell.
  static void CheckSize(std::size_t cells);

  /// Returns a cell, or null if it was never written.
  const GridCell* Find(std::int32_t row, std::int32_t column) const;
  /// Returns a cell for writing, and makes it if necessary.
  GridCell& At(std::int32_t row, std::int32_t column);
  /// Inserts a row above `row`. Raises error 1004 if the last row of the sheet would be lost.
  void InsertRow(std::int32_t row);
  /// Deletes a row, counted from 1; the rows below it move up.
  void DeleteRow(std::int32_t row);

  /// Number of rows up to the last one with a cell.
  std::int32_t RowCount() const { return static_cast<std::int32_t>(above_.size() + below_.size()); }
  /// Returns the smallest rectangle that contains all cells that aren't blank.
  std::optional<CellRange> Used() const;
  /// Returns the `sheetData` element, with inline texts. `prefix` is the prefix of the part's elements, with
  /// its colon.
  std::string SheetData(const std::string& prefix) const;

 private:
  using Row = std::vector<GridCell>;
  const Row& RowAt(std::int32_t row) const;
  /// Moves rows between above_ and below_ so that `row` is the first row of below_.
  void DivideAt(std::int32_t row);

  /// The rows, divided at the position of the last insertion or deletion. Many rows are inserted at the same
  /// position, and the rows below it don't have to be moved each time. `below_` is in reverse order.
  std::vector<Row> above_, below_;
  std::size_t held_ = 0;  ///< The number of cells, including those that were never written.
};

}  // namespace plotsmith::xlsx

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "host/excel/CellValue.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::xlsx {

/// A cell that can be changed.
struct GridCell {
  excel::CellValue::Kind kind = excel::CellValue::Kind::kEmpty;
  double number = 0;
  std::string text;         ///< of a text or an error value
  std::uint32_t style = 0;  ///< an index into cellXfs

  bool IsBlank() const { return kind == excel::CellValue::Kind::kEmpty && style == 0; }
};

/// The cells of a sheet that is written to: row by row, so that rows can be inserted and deleted.
class CellGrid {
 public:
  /// Error 1004 if a sheet of so many cells takes more room than there should be need for. A row takes room
  /// up to its last cell.
  static void CheckRoom(std::size_t cells);

  /// Null where nothing was ever put. Rows and columns from 1.
  const GridCell* Find(std::int32_t row, std::int32_t column) const;
  GridCell& At(std::int32_t row, std::int32_t column);
  /// Error 1004 if the last row of the sheet would be pushed out.
  void InsertRow(std::int32_t row);
  void DeleteRow(std::int32_t row);

  std::int32_t RowCount() const { return static_cast<std::int32_t>(above_.size() + below_.size()); }
  /// The rectangle around all cells that aren't blank.
  std::optional<CellRange> Used() const;
  /// The `sheetData` element, texts inline; `prefix` is that of the part's elements, with its colon.
  std::string SheetData(const std::string& prefix) const;

 private:
  using Row = std::vector<GridCell>;
  const Row& RowAt(std::int32_t row) const;
  /// Makes the row the first of those below.
  void DivideAt(std::int32_t row);

  /// The rows, divided where one last went in or out: many go at one place, and those behind needn't move for
  /// each. `below_` begins with the last row of the sheet.
  std::vector<Row> above_, below_;
  std::size_t held_ = 0;  ///< cells, with those that only fill a row up
};

}  // namespace plotsmith::xlsx

#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "xlsx/sheet/Reference.h"

namespace plotsmith::render {

/// Determines which cells are merged. If cells are checked row by row from the top, each range is visited
/// once. Therefore many ranges on a large page take little time.
class MergedCells {
 public:
  /// Takes the merged ranges of a sheet, which don't overlap.
  explicit MergedCells(std::vector<xlsx::CellRange> ranges);

  /// Returns true if a cell is in a merged range. Rows and columns count from 1.
  bool AreAt(std::int32_t row, std::int32_t column);

 private:
  /// Sets `columns_` for a row.
  void GoTo(std::int32_t row);

  std::vector<xlsx::CellRange> ranges_;  ///< sorted by their first rows
  std::int32_t row_ = 0;                 ///< the row that `columns_` describes
  std::size_t next_ = 0;                 ///< index of the first range that begins below the row
  std::vector<xlsx::CellRange> open_;    ///< ranges that contain the row
  std::vector<std::pair<std::int32_t, std::int32_t>>
      columns_;  ///< first and last columns of merged cells in the row, ascending
};

}  // namespace plotsmith::render

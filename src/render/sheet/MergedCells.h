#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "xlsx/sheet/Reference.h"

namespace plotsmith::render {

/// Says which cells are merged. Asked row by row from the top, it takes each range in hand once, so that many
/// ranges on a large page don't take their product of time.
class MergedCells {
 public:
  explicit MergedCells(std::vector<xlsx::CellRange> ranges);

  /// Whether a range holds the cell; both count from 1.
  bool Hold(std::int32_t row, std::int32_t column);

 private:
  void GoTo(std::int32_t row);

  std::vector<xlsx::CellRange> ranges_;  ///< by their first rows
  std::int32_t row_ = 0;                 ///< that `columns_` is of
  std::size_t next_ = 0;                 ///< of `ranges_`: the first that begins below the row
  std::vector<xlsx::CellRange> open_;    ///< ranges that meet the row
  std::vector<std::pair<std::int32_t, std::int32_t>> columns_;  ///< first and last ones; apart and ascending
};

}  // namespace plotsmith::render

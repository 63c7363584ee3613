#pragma once

#include <cstdint>

#include "xlsx/sheet/CellGrid.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::xlsx {

/// The options of a sort.
struct SortOptions {
  std::int32_t column = 1;  ///< The key's column on the sheet, from 1. It is inside the range.
  bool descending = false;  ///< Whether the order is descending.
  bool matchCase = false;   ///< Whether lower case precedes upper case in texts that are otherwise equal.
};

/// Sorts the rows of a range in Excel's order: numbers, texts, FALSE, TRUE, errors. Empty cells are last in
/// both directions, and equal rows keep their order. The cells move with their styles.
void SortRows(CellGrid& grid, const CellRange& range, const SortOptions& options);

}  // namespace plotsmith::xlsx

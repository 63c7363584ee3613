#pragma once

#include <cstdint>

#include "xlsx/sheet/CellGrid.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::xlsx {

struct SortOptions {
  std::int32_t column = 1;  ///< of the sheet, inside the range
  bool descending = false;
  bool matchCase = false;  ///< then lower case goes before upper case, where texts are else the same
};

/// Sorts the rows of a range as Excel does: numbers, texts, FALSE, TRUE, errors; empty cells go last in
/// either direction, and what is equal keeps its order. The cells move with their styles.
void SortRows(CellGrid& grid, const CellRange& range, const SortOptions& options);

}  // namespace plotsmith::xlsx

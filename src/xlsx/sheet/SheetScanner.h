#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "xlsx/numberformat/NumberFormat.h"
#include "xlsx/package/Archive.h"
#include "xlsx/sheet/CellStore.h"

namespace plotsmith::xlsx {

/// The contents of a sheet that Plotsmith uses.
struct SheetContents {
  /// The cells that have a value or a style.
  CellStore cells;
  /// The smallest rectangle that contains all cells, or nothing. The `dimension` element isn't used.
  std::optional<CellRange> used;
  /// The text before `sheetData`, in UTF-8.
  std::string head;
  /// Whether a cell has a formula. Elements after the cells can have formulas too.
  bool formulas = false;
  /// Cells with a formula and no stored result, in the order of the file. Programs that don't calculate
  /// formulas write such cells.
  std::vector<CellPlace> formulasWithoutResult;
  /// Heights of single rows, in points, in the order of the file; 0 for a hidden row.
  std::vector<std::pair<std::int32_t, double>> rowHeights;
  /// Merged cells, in the order of the file.
  std::vector<CellRange> mergedCells;
  /// The id of the relationship in the `drawing` element; empty if there is no such element.
  std::string drawing;
};

/// Reads a sheet in one pass. Throws PackageError.
SheetContents ScanSheet(Archive::Stream& source, DateSystem dates);

}  // namespace plotsmith::xlsx

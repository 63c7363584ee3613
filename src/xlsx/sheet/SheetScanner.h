#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "xlsx/numberformat/NumberFormat.h"
#include "xlsx/package/Archive.h"
#include "xlsx/sheet/CellStore.h"

namespace plotsmith::xlsx {

/// What a sheet's part says, as far as we ask.
struct SheetContents {
  CellStore cells;
  /// The rectangle around all cells of the part, whatever its `dimension` claims; empty in a sheet without
  /// any.
  std::optional<CellRange> used;
  /// The part before `sheetData`, in UTF-8.
  std::string head;
  /// Whether a cell has a formula. What stands behind the cells may hold some too.
  bool formulas = false;
  /// Cells with a formula whose result the file doesn't hold, in the order of the file. A program that writes
  /// formulas without calculating them leaves such cells.
  std::vector<CellPlace> formulasWithoutResult;
  /// Heights of rows that have their own, in points, in the order of the file; 0 is a hidden row.
  std::vector<std::pair<std::int32_t, double>> rowHeights;
  /// Cells that are shown as one, in the order of the file.
  std::vector<CellRange> mergedCells;
};

/// Reads a sheet in one pass. Throws PackageError.
SheetContents ScanSheet(Archive::Stream& source, DateSystem dates);

}  // namespace plotsmith::xlsx

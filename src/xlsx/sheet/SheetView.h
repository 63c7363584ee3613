#pragma once

#include "xlsx/package/Archive.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::xlsx {

/// The view of a sheet in a window (CT_SheetView).
struct SheetView {
  bool gridLines = true;       ///< Whether gridlines are shown.
  bool headings = true;        ///< Whether the letters of columns and the numbers of rows are shown.
  CellPlace topLeft{1, 1};     ///< The first visible cell beyond the frozen rows and columns.
  CellPlace activeCell{1, 1};  ///< The active cell.
  /// The number of rows at the top, and of columns at the left, that don't scroll.
  std::int32_t frozenRows = 0, frozenColumns = 0;
  bool selected = false;  ///< Whether the tab of the sheet is selected.

  bool operator==(const SheetView&) const = default;
};

/// Reads the first view of a sheet, the view of the workbook's first window. Reads the part only up to the
/// cells. Throws PackageError.
SheetView ReadSheetView(Archive::Stream& part);

}  // namespace plotsmith::xlsx

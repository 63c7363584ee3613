#pragma once

#include "xlsx/package/Archive.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::xlsx {

/// How a window shows a sheet (CT_SheetView).
struct SheetView {
  bool gridLines = true;
  bool headings = true;     ///< the letters of columns and the numbers of rows
  CellPlace topLeft{1, 1};  ///< the first cell in the window, or below and right of what is frozen
  CellPlace activeCell{1, 1};
  /// How many rows at the top, and columns at the left, stay in place while the rest scrolls.
  std::int32_t frozenRows = 0, frozenColumns = 0;

  bool operator==(const SheetView&) const = default;
};

/// The first view of a sheet's part, which is that of the workbook's first window. Only what stands before
/// the cells is read. Throws PackageError.
SheetView ReadSheetView(Archive::Stream& part);

}  // namespace plotsmith::xlsx

#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "render/Drawing.h"
#include "xlsx/CellContents.h"
#include "xlsx/sheet/Reference.h"
#include "xlsx/sheet/SheetGeometry.h"

namespace plotsmith::xlsx {
class Workbook;
class Worksheet;
}  // namespace plotsmith::xlsx

namespace plotsmith::render {

/// Reads the printed contents of a worksheet. Rows and columns count from 1. Members throw RuntimeError if
/// the sheet can't be read.
class SheetReader {
 public:
  /// Makes a reader. The workbook and the sheet must outlive it.
  SheetReader(xlsx::Workbook& book, xlsx::Worksheet& sheet);

  /// Returns true if a cell has no value.
  bool IsEmptyAt(std::int32_t row, std::int32_t column);
  /// Returns the contents of a cell.
  xlsx::CellContents CellAt(std::int32_t row, std::int32_t column);
  /// Returns the look of a style. The reference is valid while the reader exists.
  const xlsx::CellLook& LookOf(std::uint32_t style) { return looks_.Of(style); }
  /// Returns the look of a cell.
  const xlsx::CellLook& LookAt(std::int32_t row, std::int32_t column);
  /// The sizes of rows and columns.
  const xlsx::SheetGeometry& Geometry() const { return geometry_; }
  /// The merged ranges of the sheet.
  const std::vector<xlsx::CellRange>& MergedCells();
  /// Returns the range from A1 to the last cell that has a value, a fill or a border. Returns nothing if
  /// there is no such cell.
  std::optional<xlsx::CellRange> PrintedCells();
  /// Returns the rectangle of a range in points from the top left corner of the sheet.
  Rect AreaOf(const xlsx::CellRange& cells) const;

 private:
  /// Returns true if a cell has a value, a fill or a border.
  bool Shows(std::int32_t row, std::int32_t column);

  xlsx::Worksheet& sheet_;
  const xlsx::SheetGeometry& geometry_;
  xlsx::CellLooks looks_;
};

}  // namespace plotsmith::render

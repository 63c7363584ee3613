#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "host/excel/CellValue.h"
#include "render/Drawing.h"
#include "xlsx/CellLook.h"
#include "xlsx/sheet/Reference.h"
#include "xlsx/sheet/SheetGeometry.h"

namespace plotsmith::xlsx {
class Workbook;
class Worksheet;
}  // namespace plotsmith::xlsx

namespace plotsmith::render {

/// The contents of a cell.
struct PrintedCell {
  excel::CellValue::Kind kind = excel::CellValue::Kind::kEmpty;  ///< The kind of the value.
  double number = 0;                                             ///< The value of a number or a date.
  bool general = false;     ///< Whether it is a number in General format.
  std::uint32_t style = 0;  ///< The style for SheetReader::LookOf.
  std::string text;         ///< The displayed text, as in Range.Text.

  /// Returns true if the cell has no value.
  bool IsEmpty() const { return kind == excel::CellValue::Kind::kEmpty; }
  /// Returns true if the cell has a number or a date.
  bool IsNumber() const {
    return kind == excel::CellValue::Kind::kNumber || kind == excel::CellValue::Kind::kDate;
  }
};

/// Reads the printed contents of a worksheet. Rows and columns count from 1. Members throw RuntimeError if
/// the sheet can't be read.
class SheetReader {
 public:
  /// Makes a reader. The workbook and the sheet must outlive it.
  SheetReader(xlsx::Workbook& book, xlsx::Worksheet& sheet);

  /// Returns true if a cell has no value.
  bool IsEmptyAt(std::int32_t row, std::int32_t column);
  /// Returns the contents of a cell.
  PrintedCell CellAt(std::int32_t row, std::int32_t column);
  /// Returns the look of a style. The reference is valid while the reader exists.
  const xlsx::CellLook& LookOf(std::uint32_t style);
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

  xlsx::Workbook& book_;
  xlsx::Worksheet& sheet_;
  const xlsx::SheetGeometry& geometry_;
  std::map<std::uint32_t, xlsx::CellLook> looks_;
};

}  // namespace plotsmith::render

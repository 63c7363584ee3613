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

/// A cell as it is printed.
struct PrintedCell {
  excel::CellValue::Kind kind = excel::CellValue::Kind::kEmpty;
  double number = 0;        ///< of a number
  bool general = false;     ///< a number without a number format of its own
  std::uint32_t style = 0;  ///< for SheetReader::LookOf
  std::string text;         ///< the same as Range.Text

  bool IsEmpty() const { return kind == excel::CellValue::Kind::kEmpty; }
  bool IsNumber() const {
    return kind == excel::CellValue::Kind::kNumber || kind == excel::CellValue::Kind::kDate;
  }
};

/// A worksheet of the embedded host, as far as a printed page shows it. What can't be read throws
/// RuntimeError.
class SheetReader {
 public:
  SheetReader(xlsx::Workbook& book, xlsx::Worksheet& sheet);

  bool IsEmptyAt(std::int32_t row, std::int32_t column);
  PrintedCell CellAt(std::int32_t row, std::int32_t column);
  const xlsx::CellLook& LookOf(std::uint32_t style);
  const xlsx::CellLook& LookAt(std::int32_t row, std::int32_t column);
  const xlsx::SheetGeometry& Geometry() const { return geometry_; }
  const std::vector<xlsx::CellRange>& MergedCells();
  /// The cells that have a value, a filling or a border, as the rectangle from A1 on; absent without any.
  std::optional<xlsx::CellRange> PrintedCells();
  /// In points from the sheet's corner.
  Rect AreaOf(const xlsx::CellRange& cells) const;

 private:
  /// Whether anything is to be seen of the cell.
  bool Shows(std::int32_t row, std::int32_t column);

  xlsx::Workbook& book_;
  xlsx::Worksheet& sheet_;
  const xlsx::SheetGeometry& geometry_;
  std::map<std::uint32_t, xlsx::CellLook> looks_;
};

}  // namespace plotsmith::render

#include "render/sheet/SheetReader.h"

#include <algorithm>

#include "xlsx/Workbook.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::render {

SheetReader::SheetReader(xlsx::Workbook& book, xlsx::Worksheet& sheet)
    : sheet_(sheet), geometry_(sheet.Geometry()), looks_(book) {}

bool SheetReader::IsEmptyAt(std::int32_t row, std::int32_t column) {
  return sheet_.Stored(row, column).kind == excel::CellValue::Kind::kEmpty;
}

xlsx::CellContents SheetReader::CellAt(std::int32_t row, std::int32_t column) {
  return xlsx::ContentsAt(sheet_, row, column);
}

const xlsx::CellLook& SheetReader::LookAt(std::int32_t row, std::int32_t column) {
  return LookOf(sheet_.StyleAt(row, column));
}

const std::vector<xlsx::CellRange>& SheetReader::MergedCells() { return sheet_.MergedCells(); }

bool SheetReader::Shows(std::int32_t row, std::int32_t column) {
  if (!IsEmptyAt(row, column)) return true;
  const xlsx::CellLook& look = LookAt(row, column);
  return look.fillColor || look.left.width > 0 || look.top.width > 0 || look.right.width > 0 ||
         look.bottom.width > 0;
}

std::optional<xlsx::CellRange> SheetReader::PrintedCells() {
  const xlsx::CellRange used = sheet_.UsedCells();
  xlsx::CellRange printed{1, 1, 0, 0};
  for (std::int32_t column = used.column1; column <= used.column2; ++column) {
    for (std::int32_t row = used.row1; row != 0; row = sheet_.NextRowAt(row, column)) {
      if (row <= printed.row2 && column <= printed.column2) continue;
      if (!Shows(row, column)) continue;
      printed.row2 = std::max(printed.row2, row);
      printed.column2 = std::max(printed.column2, column);
    }
  }
  return printed.row2 > 0 ? std::optional(printed) : std::nullopt;
}

Rect SheetReader::AreaOf(const xlsx::CellRange& cells) const {
  const double left = geometry_.columns.EdgeOf(cells.column1 - 1),
               top = geometry_.rows.EdgeOf(cells.row1 - 1);
  return {left, top, geometry_.columns.EdgeOf(cells.column2) - left, geometry_.rows.EdgeOf(cells.row2) - top};
}

}  // namespace plotsmith::render

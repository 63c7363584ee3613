#include "xlsx/sheet/CellGrid.h"

#include <algorithm>
#include <utility>

#include "runtime/RuntimeError.h"
#include "xlsx/base/Limits.h"
#include "xlsx/package/XString.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

void CellGrid::CheckSize(std::size_t cells) {
  if (cells > limits::kGridCells) {
    throw runtime::RuntimeError(runtime::error::kApplication, "The sheet is too large to be written.");
  }
}

const GridCell* CellGrid::Find(std::int32_t row, std::int32_t column) const {
  if (row < 1 || row > RowCount()) return nullptr;
  const Row& cells = RowAt(row);
  if (column < 1 || column > static_cast<std::int32_t>(cells.size())) return nullptr;
  return &cells[static_cast<std::size_t>(column) - 1];
}

GridCell& CellGrid::At(std::int32_t row, std::int32_t column) {
  if (row > RowCount()) {
    DivideAt(RowCount() + 1);
    above_.resize(static_cast<std::size_t>(row));
  }
  Row& cells = const_cast<Row&>(RowAt(row));
  if (column > static_cast<std::int32_t>(cells.size())) {
    const std::size_t held = held_ + static_cast<std::size_t>(column) - cells.size();
    CheckSize(held);
    cells.resize(static_cast<std::size_t>(column));
    held_ = held;
  }
  return cells[static_cast<std::size_t>(column) - 1];
}

void CellGrid::InsertRow(std::int32_t row) {
  if (row > RowCount()) return;
  if (RowCount() == limits::kRows) {
    throw runtime::RuntimeError(
        runtime::error::kApplication,
        "To prevent possible loss of data, rows can't be shifted off of the worksheet.");
  }
  DivideAt(row);
  below_.emplace_back();
}

void CellGrid::DeleteRow(std::int32_t row) {
  if (row > RowCount()) return;
  DivideAt(row);
  held_ -= below_.back().size();
  below_.pop_back();
}

const CellGrid::Row& CellGrid::RowAt(std::int32_t row) const {
  const std::size_t index = static_cast<std::size_t>(row) - 1;
  return index < above_.size() ? above_[index] : below_[below_.size() - 1 - (index - above_.size())];
}

void CellGrid::DivideAt(std::int32_t row) {
  const std::size_t above = static_cast<std::size_t>(row) - 1;
  while (above_.size() > above) {
    below_.push_back(std::move(above_.back()));
    above_.pop_back();
  }
  while (above_.size() < above) {
    above_.push_back(std::move(below_.back()));
    below_.pop_back();
  }
}

std::optional<CellRange> CellGrid::Used() const {
  CellRange used{limits::kRows, limits::kColumns, 0, 0};
  for (std::int32_t row = 1; row <= RowCount(); ++row) {
    const Row& cells = RowAt(row);
    for (std::int32_t column = 1; column <= static_cast<std::int32_t>(cells.size()); ++column) {
      if (cells[static_cast<std::size_t>(column) - 1].IsBlank()) continue;
      used.row1 = std::min(used.row1, row);
      used.row2 = row;
      used.column1 = std::min(used.column1, column);
      used.column2 = std::max(used.column2, column);
    }
  }
  if (used.row2 == 0) return std::nullopt;
  return used;
}

std::string CellGrid::SheetData(const std::string& prefix) const {
  using Kind = excel::CellValue::Kind;
  // The tags are built once, because a sheet may have many cells.
  const std::string open = "<" + prefix, close = "</" + prefix;
  const std::string rowStart = open + "row r=\"", rowEnd = close + "row>", cellStart = open + "c r=\"";
  const std::string valueStart = ">" + open + "v>", valueEnd = close + "v>" + close + "c>";
  const std::string textStart = " t=\"inlineStr\">" + open + "is>" + open + "t xml:space=\"preserve\">";
  const std::string textEnd = close + "t>" + close + "is>" + close + "c>";
  std::string out = open + "sheetData>";
  for (std::int32_t row = 1; row <= RowCount(); ++row) {
    const Row& cells = RowAt(row);
    bool rowOpen = false;
    for (std::int32_t column = 1; column <= static_cast<std::int32_t>(cells.size()); ++column) {
      const GridCell& cell = cells[static_cast<std::size_t>(column) - 1];
      if (cell.IsBlank()) continue;
      if (!rowOpen) out.append(rowStart).append(std::to_string(row)).append("\">");
      rowOpen = true;
      out.append(cellStart).append(CellAddress(row, column)).append("\"");
      if (cell.style != 0) out.append(" s=\"").append(std::to_string(cell.style)).append("\"");
      switch (cell.kind) {
        case Kind::kEmpty:
          out += "/>";
          break;
        case Kind::kNumber:
        case Kind::kDate:
          out.append(valueStart).append(xml::Number(cell.number)).append(valueEnd);
          break;
        case Kind::kBoolean:
          out.append(" t=\"b\"").append(valueStart).append(cell.number != 0 ? "1" : "0").append(valueEnd);
          break;
        case Kind::kError:
          out.append(" t=\"e\"").append(valueStart).append(xml::EncodeText(cell.text)).append(valueEnd);
          break;
        case Kind::kText:
          out.append(textStart).append(EncodeXString(cell.text)).append(textEnd);
          break;
      }
    }
    if (rowOpen) out += rowEnd;
  }
  return out + close + "sheetData>";
}

}  // namespace plotsmith::xlsx

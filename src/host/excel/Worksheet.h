#pragma once

#include "host/excel/CellValue.h"
#include "host/excel/Sheet.h"

namespace plotsmith::excel {

class ChartObjects;
class Range;
class Shapes;

/// A sheet with cells.
class Worksheet : public Sheet {
 public:
  /// The hot road to one cell: none of these makes an object. Outside of the sheet: error 1004.
  virtual CellValue CellValueAt(std::int32_t row, std::int32_t column) = 0;
  /// The displayed text. The view is into the sheet or into `scratch`.
  virtual std::string_view CellTextAt(std::int32_t row, std::int32_t column, std::string& scratch) = 0;
  /// Stores a value as if it was typed: a text that reads as a number becomes one, a leading apostrophe marks
  /// a text, and Empty empties the cell.
  virtual void SetCellValueAt(std::int32_t row, std::int32_t column, const Variant& value) = 0;

  virtual Ref<excel::Range> Cells(std::int32_t row, std::int32_t column) = 0;
  /// The rectangle between two cells, each by an address such as "$A$1".
  virtual Ref<excel::Range> Range(std::string_view cell1, std::string_view cell2) = 0;
  virtual Ref<excel::Range> Rows(std::int32_t row) = 0;
  /// The rectangle around all cells that hold anything or are formatted; A1 in an empty sheet.
  virtual Ref<excel::Range> UsedRange() = 0;
  virtual Ref<excel::Shapes> Shapes() = 0;
  virtual Ref<excel::ChartObjects> ChartObjects() = 0;
};

}  // namespace plotsmith::excel

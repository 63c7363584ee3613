#pragma once

#include "host/excel/CellValue.h"
#include "host/excel/Sheet.h"

namespace plotsmith::excel {

class ChartObjects;
class Range;
class Shapes;

/// A sheet with cells. For single cells there is a hot road, which makes no objects: the members that end in
/// At. Cells outside of the sheet are error 1004 everywhere.
class Worksheet : public Sheet {
 public:
  /// What a cell holds. A text in it is good until the sheet is next written.
  virtual CellValue CellValueAt(std::int32_t row, std::int32_t column) = 0;
  /// The displayed text. The view is into the sheet or into `scratch`.
  virtual std::string_view CellTextAt(std::int32_t row, std::int32_t column, std::string& scratch) = 0;
  /// The next row below that may hold anything in the column, 0 if there is none: a way over blank stretches.
  virtual std::int32_t NextRowAt(std::int32_t row, std::int32_t column) = 0;
  /// A row below: a way over cells of the column that show some text, but not this one. A host that can't
  /// tell such cells at less cost than by their texts goes to the next row.
  virtual std::int32_t NextRowShowing(std::int32_t row, std::int32_t column, std::string_view text) {
    static_cast<void>(column), static_cast<void>(text);
    return row + 1;
  }
  /// Stores a value as if it was typed: a text that reads as a number becomes one, a leading apostrophe marks
  /// a text, and Empty empties the cell. Its format stays. Error 1004 for what a cell can't hold, such as
  /// a formula in a host without formulas, and on a sheet that can't be written: see Range.
  virtual void SetCellValueAt(std::int32_t row, std::int32_t column, const Variant& value) = 0;

  /// One cell.
  virtual Ref<excel::Range> Cells(std::int32_t row, std::int32_t column) = 0;
  /// The rectangle between two cells, each by an address such as "$A$1"; error 1004 for what is no address.
  virtual Ref<excel::Range> Range(std::string_view cell1, std::string_view cell2) = 0;
  /// One row, from the first column to the last.
  virtual Ref<excel::Range> Rows(std::int32_t row) = 0;
  /// The rectangle around all cells that hold anything or are formatted; A1 in an empty sheet.
  virtual Ref<excel::Range> UsedRange() = 0;

  /// All that is drawn on the sheet.
  virtual Ref<excel::Shapes> Shapes() = 0;
  /// Those of the shapes that are charts.
  virtual Ref<excel::ChartObjects> ChartObjects() = 0;
};

}  // namespace plotsmith::excel

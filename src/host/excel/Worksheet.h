#pragma once

#include "host/excel/CellValue.h"
#include "host/excel/Sheet.h"

namespace plotsmith::excel {

class ChartObjects;
class Range;
class Shapes;

/// A sheet with cells. The members whose names end in At read and write single cells quickly, without making
/// objects. All members raise error 1004 for cells outside the sheet.
class Worksheet : public Sheet {
 public:
  /// Returns the contents of a cell. Its text is valid until the next change to the sheet.
  virtual CellValue CellValueAt(std::int32_t row, std::int32_t column) = 0;
  /// Returns the displayed text of a cell. The view refers to the sheet or to `scratch`.
  virtual std::string_view CellTextAt(std::int32_t row, std::int32_t column, std::string& scratch) = 0;
  /// Returns the next row below `row` that may have contents in the column, or 0 if there is none. Use it to
  /// skip blank cells.
  virtual std::int32_t NextRowAt(std::int32_t row, std::int32_t column) = 0;
  /// Returns a row below `row`. In each row between the two, the cell of the column shows a text other than
  /// `text`. Use it to search a column for a text or for its first blank cell. A host that can't skip such
  /// cells quickly returns the next row.
  virtual std::int32_t NextRowShowing(std::int32_t row, std::int32_t column, std::string_view text) {
    static_cast<void>(column), static_cast<void>(text);
    return row + 1;
  }
  /// Returns a number that changes with each change to the cells of the sheet, and that no other sheet has.
  /// Use it to find out whether cells have changed since they were read. The result is 0 if the host can't
  /// tell.
  virtual std::uint64_t ContentsVersion() { return 0; }
  /// Stores a value as if it were typed: a text that looks like a number becomes a number, a leading
  /// apostrophe marks a text, and Empty clears the cell. The format of the cell doesn't change. Raises error
  /// 1004 for values that a cell can't contain, such as a formula in a host without formulas, and for sheets
  /// that can't be written (see Range).
  virtual void SetCellValueAt(std::int32_t row, std::int32_t column, const Variant& value) = 0;

  /// Returns a range of one cell.
  virtual Ref<excel::Range> Cells(std::int32_t row, std::int32_t column) = 0;
  /// Returns the rectangle between two cells, given by addresses such as "$A$1". Raises error 1004 for
  /// invalid addresses.
  virtual Ref<excel::Range> Range(std::string_view cell1, std::string_view cell2) = 0;
  /// Returns a whole row.
  virtual Ref<excel::Range> Rows(std::int32_t row) = 0;
  /// The smallest rectangle that contains all cells with contents or formats. For an empty sheet it is A1.
  virtual Ref<excel::Range> UsedRange() = 0;

  /// The shapes on the sheet, including charts.
  virtual Ref<excel::Shapes> Shapes() = 0;
  /// The chart frames on the sheet.
  virtual Ref<excel::ChartObjects> ChartObjects() = 0;
};

}  // namespace plotsmith::excel

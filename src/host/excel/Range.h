#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// A range of cells on one sheet: a rectangle, whole rows or whole columns. A host without formulas can't
/// write to a sheet that contains formulas; it raises error 1004.
class Range {
 public:
  virtual ~Range() = default;

  /// The row or column of the first cell, counted from 1.
  ///@{
  virtual std::int32_t Row() = 0;
  virtual std::int32_t Column() = 0;
  ///@}

  /// The same cells as rows or as columns. This affects Count.
  ///@{
  virtual Ref<Range> Rows() = 0;
  virtual Ref<Range> Columns() = 0;
  ///@}

  /// The number of rows for Rows, of columns for Columns, and of cells otherwise. Raises error 6 above
  /// 2147483647.
  virtual std::int32_t Count() = 0;
  /// Returns a cell relative to the first cell of this range, which is (1, 1). The cell may be outside the
  /// range. Raises error 1004 outside the sheet.
  virtual Ref<Range> Cells(std::int32_t row, std::int32_t column) = 0;
  /// The absolute address without the sheet, such as "$A$1" or "$A$1:$C$5".
  virtual std::string Address() = 0;

  /// The value of the first cell. A blank cell is Empty, and a number in a date format is a Date.
  virtual Variant Value() = 0;
  /// Sets the value of a single cell, like Worksheet::SetCellValueAt.
  virtual void SetValue(const Variant& value) = 0;
  /// The displayed text of the first cell in its number format, independent of the column width.
  virtual std::string Text() = 0;
  /// Sets the number format of all cells. Raises error 1004 for an invalid format.
  virtual void SetNumberFormat(std::string_view format) = 0;
  /// Deletes the contents and the formats of the cells.
  virtual void Clear() = 0;
  /// Makes the first cell the active cell. This deselects a selected chart.
  virtual void Activate() = 0;

  /// Inserts the same number of rows above these. The rows below move down, and references to them are
  /// adjusted. Raises error 1004 if the range isn't whole rows, or if cells would move beyond the end of the
  /// sheet.
  virtual void Insert() = 0;
  /// Deletes the rows. The rows below move up, and references to them are adjusted. `shift` is xlShiftUp.
  /// Raises error 1004 if the range isn't whole rows.
  virtual void Delete(std::int32_t shift) = 0;
  /// Sorts the rows by the column of `key1`. `order1` is xlAscending or xlDescending, `header` is xlYes or
  /// xlNo, `orderCustom` is 1 for the normal order, and `orientation` is xlTopToBottom. Blank cells are last
  /// in either order. Raises error 1004 for other arguments, for a column outside the range, and for merged
  /// cells.
  virtual void Sort(Ref<Range> key1, std::int32_t order1, std::int32_t header, std::int32_t orderCustom,
                    bool matchCase, std::int32_t orientation) = 0;
};

}  // namespace plotsmith::excel

#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// Cells of one sheet: a rectangle, whole rows or whole columns. A host without formulas can't write on a
/// sheet that has some: error 1004.
class Range {
 public:
  virtual ~Range() = default;

  /// Of the first cell, from 1.
  ///@{
  virtual std::int32_t Row() = 0;
  virtual std::int32_t Column() = 0;
  ///@}

  /// The same cells, taken by rows or by columns: it matters to Count.
  ///@{
  virtual Ref<Range> Rows() = 0;
  virtual Ref<Range> Columns() = 0;
  ///@}

  /// Of Rows the rows, of Columns the columns, else the cells. Error 6 for more than 2147483647.
  virtual std::int32_t Count() = 0;
  /// A cell, counted from this range's first; it may lie outside of the range. Error 1004 outside of the
  /// sheet.
  virtual Ref<Range> Cells(std::int32_t row, std::int32_t column) = 0;
  /// Absolute, without the sheet: "$A$1", "$A$1:$C$5".
  virtual std::string Address() = 0;

  /// Of the first cell; an empty one is Empty, a cell in a date format a Date.
  virtual Variant Value() = 0;
  /// Of a single cell, as Worksheet::SetCellValueAt.
  virtual void SetValue(const Variant& value) = 0;
  /// What the first cell shows, in its number format, however narrow its column is.
  virtual std::string Text() = 0;
  /// Of all cells. Error 1004 for a format that isn't one.
  virtual void SetNumberFormat(std::string_view format) = 0;
  /// Empties the cells and takes their formats away.
  virtual void Clear() = 0;
  /// Makes the first cell the active one, which takes the selection off a chart.
  virtual void Activate() = 0;

  /// As many rows above these; what lies below moves, and references to it follow. Error 1004 for what isn't
  /// whole rows, and where cells would fall off the sheet's end.
  virtual void Insert() = 0;
  /// What lies below moves up, and references to it follow. `shift` is xlShiftUp. Error 1004 for what isn't
  /// whole rows.
  virtual void Delete(std::int32_t shift) = 0;
  /// Sorts the rows by the column of `key1`. `order1` is xlAscending or xlDescending, `header` xlYes or xlNo,
  /// `orderCustom` 1 for the plain order, `orientation` xlTopToBottom. Empty cells go last, whatever the
  /// order. Error 1004 for anything else, for a column outside of the range, and where cells are merged.
  virtual void Sort(Ref<Range> key1, std::int32_t order1, std::int32_t header, std::int32_t orderCustom,
                    bool matchCase, std::int32_t orientation) = 0;
};

}  // namespace plotsmith::excel

#pragma once

#include "host/excel/Using.h"

namespace plotsmith::excel {

/// Cells of one sheet: a rectangle, whole rows or whole columns.
class Range {
 public:
  virtual ~Range() = default;

  /// Of the first cell, from 1.
  virtual std::int32_t Row() = 0;
  virtual std::int32_t Column() = 0;
  virtual Ref<Range> Rows() = 0;
  virtual Ref<Range> Columns() = 0;
  /// Of Rows the rows, of Columns the columns, else the cells.
  virtual std::int32_t Count() = 0;
  /// A cell, counted from this range's first.
  virtual Ref<Range> Cells(std::int32_t row, std::int32_t column) = 0;
  /// Absolute, without the sheet: "$A$1", "$A$1:$C$5".
  virtual std::string Address() = 0;

  /// Of the first cell; an empty one is Empty, a cell in a date format a Date.
  virtual Variant Value() = 0;
  virtual void SetValue(const Variant& value) = 0;
  /// What the first cell shows, in its number format.
  virtual std::string Text() = 0;
  /// Error 1004 for a format that isn't one.
  virtual void SetNumberFormat(std::string_view format) = 0;
  /// Empties the cells and takes their formats away.
  virtual void Clear() = 0;
  virtual void Activate() = 0;
  /// Whole rows only; what lies below moves, and references to it follow.
  virtual void Insert() = 0;
  /// Whole rows only; what lies below moves up, and references to it follow.
  virtual void Delete(std::int32_t shift) = 0;
  /// Sorts the rows by one column. `order1` is xlAscending or xlDescending, `header` xlYes or xlNo,
  /// `orderCustom` 1 for the plain order, `orientation` xlTopToBottom. Empty cells go last, whatever the
  /// order.
  virtual void Sort(Ref<Range> key1, std::int32_t order1, std::int32_t header, std::int32_t orderCustom,
                    bool matchCase, std::int32_t orientation) = 0;
};

}  // namespace plotsmith::excel

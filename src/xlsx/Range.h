#pragma once

#include <memory>

#include "host/excel/Range.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::xlsx {

class Worksheet;

/// Makes the port's object for cells of a sheet: a rectangle, entire rows or entire columns.
excel::Ref<excel::Range> MakeRange(std::shared_ptr<Worksheet> sheet, const CellRange& cells);

/// The sheet and the cells of a range.
struct SheetCells {
  Worksheet& sheet;  ///< The sheet, which must outlive this object.
  CellRange cells;   ///< The cells, with numbers of rows and columns from 1.
};
/// Returns the sheet and the cells of a range. Raises error 13 if another host made the range.
SheetCells CellsOf(const excel::Range& range);

}  // namespace plotsmith::xlsx

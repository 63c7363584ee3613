#pragma once

#include <memory>

#include "host/excel/Range.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::xlsx {

class Worksheet;

/// Cells of a sheet for the port: a rectangle, entire rows or entire columns.
excel::Ref<excel::Range> MakeRange(std::shared_ptr<Worksheet> sheet, const CellRange& cells);

/// The sheet and the cells of a range.
struct SheetCells {
  Worksheet& sheet;
  CellRange cells;
};
/// The sheet and the cells of a range. Error 13 for a range of another host.
SheetCells CellsOf(const excel::Range& range);

}  // namespace plotsmith::xlsx

#pragma once

#include <memory>

#include "host/excel/Range.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::xlsx {

class Worksheet;

/// Cells of a sheet as an object: a rectangle, whole rows or whole columns.
excel::Ref<excel::Range> MakeRange(std::shared_ptr<Worksheet> sheet, const CellRange& cells);

/// The cells that an object is.
struct SheetCells {
  Worksheet& sheet;
  CellRange cells;
};
/// Of a range that MakeRange made; error 13 for another host's.
SheetCells CellsOf(const excel::Range& range);

}  // namespace plotsmith::xlsx

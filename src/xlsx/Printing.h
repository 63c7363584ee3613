#pragma once

#include <vector>

#include "xlsx/sheet/PageSetup.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::xlsx {

class Workbook;
struct SheetEntry;

/// The page setup of a sheet of any kind. Raises error 1004 if the sheet's part can't be read.
PageSetup PageSetupOf(Workbook& book, const SheetEntry& sheet);

/// The print area of a sheet (the name _xlnm.Print_Area). Each range begins a new page. Empty if there is
/// none.
std::vector<CellRange> PrintAreaOf(const Workbook& book, const SheetEntry& sheet);

}  // namespace plotsmith::xlsx

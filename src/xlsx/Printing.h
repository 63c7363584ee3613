#pragma once

#include <vector>

#include "xlsx/sheet/PageSetup.h"
#include "xlsx/sheet/Reference.h"

namespace plotsmith::xlsx {

class Workbook;
struct SheetEntry;

/// How a sheet of any kind is printed. Error 1004 where its part can't be read.
PageSetup PageSetupOf(Workbook& book, const SheetEntry& sheet);

/// The cells of a sheet that are printed where somebody has said it (the name _xlnm.Print_Area): each range
/// begins a page. Empty where nobody has.
std::vector<CellRange> PrintAreaOf(const Workbook& book, const SheetEntry& sheet);

}  // namespace plotsmith::xlsx

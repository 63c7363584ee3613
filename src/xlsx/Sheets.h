#pragma once

#include "host/excel/Sheets.h"
#include "host/excel/Worksheets.h"

namespace plotsmith::xlsx {

class Workbook;

/// All sheets of a workbook, and the sheets with cells, for the port. Both are in the order of their tabs.
excel::Ref<excel::Sheets> MakeSheets(Workbook& book);
/// The worksheets of a workbook for the port.
excel::Ref<excel::Worksheets> MakeWorksheets(Workbook& book);

}  // namespace plotsmith::xlsx

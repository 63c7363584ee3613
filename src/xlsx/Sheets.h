#pragma once

#include "host/excel/Sheets.h"
#include "host/excel/Worksheets.h"

namespace plotsmith::xlsx {

class Workbook;

/// The sheets of a workbook for the port, in the order of their tabs.
excel::Ref<excel::Sheets> MakeSheets(Workbook& book);
/// The sheets with cells for the port, in the order of their tabs.
excel::Ref<excel::Worksheets> MakeWorksheets(Workbook& book);

}  // namespace plotsmith::xlsx

#pragma once

#include "host/excel/Sheets.h"
#include "host/excel/Worksheets.h"

namespace plotsmith::xlsx {

class Workbook;

excel::Ref<excel::Sheets> MakeSheets(Workbook& book);
excel::Ref<excel::Worksheets> MakeWorksheets(Workbook& book);

}  // namespace plotsmith::xlsx

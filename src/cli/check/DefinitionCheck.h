#pragma once

#include <string>
#include <vector>

#include "cli/check/Finding.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// A row of the sheet of definitions, and what is wrong with it. What a row doesn't say is empty.
struct CheckedDefinition {
  std::string place;  ///< its cell, "VEX_ChartDefinitions!A2"
  std::string id, name, type, table;
  std::string chartSheet;  ///< where the chart is; empty if there is none
  Findings findings;
};

/// Looks at all rows of the sheet of definitions, also at those that a load passes over or removes. It wants
/// `oWorkbook` and `colTables` set, and `book` is that workbook. Changes nothing.
std::vector<CheckedDefinition> CheckDefinitions(xlsx::Workbook& book);

}  // namespace plotsmith::cli

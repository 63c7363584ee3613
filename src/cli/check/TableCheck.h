#pragma once

#include <string>
#include <vector>

#include "cli/check/Finding.h"
#include "dom/Dom.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// A table, or a defined name that should mark one, with its problems.
struct CheckedTable {
  std::string id;             ///< The table id.
  dom::IXMLDOMElement table;  ///< Nothing for a name that defines no table.
  Findings findings;          ///< The problems of the table; empty if there are none.
};

/// Returns the ids of the tables in `colTables`, in their order.
std::vector<std::string> LoadedTableIds();

/// Checks the cells of the columns that the definition `chart` uses, in the tables in `colTables`, for
/// formulas without a result. If a column is missing, it checks the headings too. Changes nothing.
Findings CheckUsedCells(xlsx::Workbook& book, const dom::IXMLDOMElement& chart);

/// Checks all tables in `colTables` and the names of the workbook. Changes nothing.
std::vector<CheckedTable> CheckTables(xlsx::Workbook& book);

}  // namespace plotsmith::cli

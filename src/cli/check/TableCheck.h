#pragma once

#include <vector>

#include "cli/check/Finding.h"
#include "dom/Dom.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// A table, or a defined name that was to mark one, and what is wrong with it.
struct CheckedTable {
  std::string id;
  dom::IXMLDOMElement table;  ///< Nothing for a name that marks no table
  Findings findings;
};

/// Looks at the cells of those columns that the definition of the element `chart` draws from, in the tables
/// of `colTables`: formulas without a result. Where a column isn't there, it looks at the headings too.
/// Changes nothing.
Findings CheckUsedCells(xlsx::Workbook& book, const dom::IXMLDOMElement& chart);

/// Looks at all tables of `colTables`, and at the names of the workbook. Changes nothing.
std::vector<CheckedTable> CheckTables(xlsx::Workbook& book);

}  // namespace plotsmith::cli

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

/// Looks at all tables of `colTables`, and at the names of the workbook. Changes nothing.
std::vector<CheckedTable> CheckTables(xlsx::Workbook& book);

}  // namespace plotsmith::cli

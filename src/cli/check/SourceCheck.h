#pragma once

#include <string>

#include "cli/check/Finding.h"
#include "dom/Dom.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// Finds the mismatches between the definition `chart` and the tables in `colTables`, and what is missing for
/// its type. `place` is the cell of the definition. Changes nothing.
Findings CheckSource(xlsx::Workbook& book, const dom::IXMLDOMElement& chart, const std::string& place);

/// Finds the same, and also the problems in the cells of the chart: everything that makes its picture wrong.
Findings CheckSources(xlsx::Workbook& book, const dom::IXMLDOMElement& chart, const std::string& place);

}  // namespace plotsmith::cli

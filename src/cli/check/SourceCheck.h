#pragma once

#include <string>

#include "cli/check/Finding.h"
#include "dom/Dom.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// Finds mismatches between the definition `chart` and the tables in `colTables`, and missing elements that
/// its type requires. `place` is the cell of the definition. Changes nothing.
Findings CheckSource(xlsx::Workbook& book, const dom::IXMLDOMElement& chart, const std::string& place);

/// Finds the same as CheckSource, and also the problems in cells that make the chart wrong.
Findings CheckSources(xlsx::Workbook& book, const dom::IXMLDOMElement& chart, const std::string& place);

}  // namespace plotsmith::cli

#pragma once

#include <string>

#include "cli/check/Finding.h"
#include "dom/Dom.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// Finds the mismatches between the definition `chart` and the tables in `colTables`, and the elements that
/// its type requires. `place` is the cell of the definition. Changes nothing.
Findings CheckSource(xlsx::Workbook& book, const dom::IXMLDOMElement& chart, const std::string& place);

/// Finds the same, and also the problems in the cells that make the picture wrong.
Findings CheckSources(xlsx::Workbook& book, const dom::IXMLDOMElement& chart, const std::string& place);

}  // namespace plotsmith::cli

#pragma once

#include <string>

#include "cli/check/Finding.h"
#include "dom/Dom.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// Where the definition of the element `chart` doesn't go with the tables of `colTables`, or lacks what its
/// type needs. `place` is the cell of the definition. Changes nothing.
Findings CheckSource(xlsx::Workbook& book, const dom::IXMLDOMElement& chart, const std::string& place);

/// The same, and what is wrong in the cells that the chart draws from: all that makes its picture wrong.
Findings CheckSources(xlsx::Workbook& book, const dom::IXMLDOMElement& chart, const std::string& place);

}  // namespace plotsmith::cli

#pragma once

#include <string>

#include "cli/check/Finding.h"
#include "dom/Dom.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// Where the definition of the element `chart` doesn't go with the tables of `colTables`, or lacks what its
/// type needs. `place` is the cell of the definition. Changes nothing.
Findings CheckSource(xlsx::Workbook& book, const dom::IXMLDOMElement& chart, const std::string& place);

}  // namespace plotsmith::cli

#pragma once

#include <string>

#include "cli/check/Finding.h"
#include "cli/check/NamedColumns.h"
#include "dom/Dom.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// Finds mismatches between the definition `chart` and the tables in `colTables`, and missing elements that
/// its type requires. `place` is the cell of the definition. `named` is the same object for all definitions
/// that are checked together. Changes nothing.
Findings CheckSource(xlsx::Workbook& book, const dom::IXMLDOMElement& chart, const std::string& place,
                     NamedColumns& named);

/// Finds the same as CheckSource, without a place, and also the problems in cells that make the chart wrong.
Findings CheckSources(xlsx::Workbook& book, const dom::IXMLDOMElement& chart, NamedColumns& named);

}  // namespace plotsmith::cli

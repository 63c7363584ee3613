#pragma once

#include <string>

#include "cli/check/Finding.h"
#include "dom/Dom.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// Finds the colour labels that leave a bubble chart without a drawn legend: blank ones, and those with the
/// separator of the legend's entries. `chart` is the element of the definition, and `table` is the table from
/// which the chart was drawn. The data sheet has the chart's block. Changes nothing.
Findings CheckBubbleLabels(xlsx::Workbook& book, const dom::IXMLDOMElement& chart,
                           const dom::IXMLDOMElement& table);

}  // namespace plotsmith::cli

#pragma once

#include <string>

#include "cli/check/Finding.h"
#include "dom/Dom.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// Where the colour labels of a bubble chart leave it without a drawn legend: a blank one, or one with the
/// character that separates the legend's entries. `chart` is the element of the definition and `table` that
/// of the table that the chart was drawn from; the data sheet has its block. Changes nothing.
Findings CheckBubbleLabels(xlsx::Workbook& book, const dom::IXMLDOMElement& chart,
                           const dom::IXMLDOMElement& table);

}  // namespace plotsmith::cli

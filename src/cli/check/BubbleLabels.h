#pragma once

#include <string>

#include "cli/check/Finding.h"
#include "dom/Dom.h"
#include "xlsx/Workbook.h"

namespace plotsmith::cli {

/// Where the colour labels of a bubble chart leave it without a drawn legend: a blank one, or one with the
/// character that separates the legend's entries. `chart` is the element of the definition as the chart was
/// drawn from it, and the data sheet has its block. Changes nothing.
Findings CheckBubbleLabels(xlsx::Workbook& book, const dom::IXMLDOMElement& chart);

}  // namespace plotsmith::cli

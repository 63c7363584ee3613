#pragma once

#include "dom/Dom.h"

/// Module PSChartBuilder: strategic bucket charts, from a finished block of the data sheet to the finished
/// chart.
namespace plotsmith {

/// Draws a series of stacked columns for each item, with the item's label as its name, and a series of marks.
void PopulateStrBuckChart(const dom::IXMLDOMElement& oChartElement);
/// Sets the title, axis titles, the fonts of the items' labels, and the legend.
void SetStrBuckChartAttributes(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

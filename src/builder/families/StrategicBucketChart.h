#pragma once

#include "dom/Dom.h"

/// Module PSChartBuilder: strategic bucket charts, from a finished block of the data sheet to the finished
/// chart.
namespace plotsmith {

/// A series of stacked columns for each item, named by the item's label, and a series of marks.
void PopulateStrBuckChart(const dom::IXMLDOMElement& oChartElement);
/// Title, axis titles, the fonts of the items' labels, and the legend.
void SetStrBuckChartAttributes(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

#pragma once

#include "dom/Dom.h"

/// Module PSChartBuilder: area, bar and column charts, from a filled block of the data sheet to the finished
/// chart.
namespace plotsmith {

/// One series for each value column of the block, on a clustered bar chart.
void PopulateABCChart(const dom::IXMLDOMElement& oChartElement);
/// Title, axis titles, data labels, legend, and the chart type last.
void SetABCChartAttributes(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

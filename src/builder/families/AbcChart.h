#pragma once

#include "dom/Dom.h"

/// Module PSChartBuilder: area, bar and column charts, from a filled block of the data sheet to the finished
/// chart.
namespace plotsmith {

/// Draws one series for each value column of the block, as clustered bars.
void PopulateABCChart(const dom::IXMLDOMElement& oChartElement);
/// Sets the title, axis titles, data labels, legend and, at the end, the chart type.
void SetABCChartAttributes(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

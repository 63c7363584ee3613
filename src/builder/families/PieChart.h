#pragma once

#include "dom/Dom.h"

/// Module PSChartBuilder: pie charts, from a filled block of the data sheet to the finished chart.
namespace plotsmith {

/// Draws one series without a name for each value column of the block.
void PopulatePieChart(const dom::IXMLDOMElement& oChartElement);
/// Sets the title, data labels, chart type, and a legend unless it was hidden.
void SetPieChartAttributes(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

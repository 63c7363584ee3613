#pragma once

#include "dom/Dom.h"

/// Module PSChartBuilder: bubble charts, from a finished block of the data sheet to the finished chart.
namespace plotsmith {

/// Draws a series of one bubble for each row of the block. The row's colour label is the name of the series.
void PopulateBubbleChart(const dom::IXMLDOMElement& oChartElement);
/// Sets the title, axis titles, chart type and legend.
void SetBubbleChartAttributes(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

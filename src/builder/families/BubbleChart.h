#pragma once

#include "dom/Dom.h"

/// Module PSChartBuilder: bubble charts, from a finished block of the data sheet to the finished chart.
namespace plotsmith {

/// A series of one bubble for each row of the block, named by the row's colour label.
void PopulateBubbleChart(const dom::IXMLDOMElement& oChartElement);
/// Title, axis titles, chart type and legend.
void SetBubbleChartAttributes(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

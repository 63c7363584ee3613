#pragma once

#include "dom/Dom.h"

namespace plotsmith {

/// Module PSChartBuilder: lets the axes of a bubble chart cross in the middle of the plot, if the definition
/// wants quadrants.
void SetBubbleChartQuadrants(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

#pragma once

#include "dom/Dom.h"

namespace plotsmith {

/// Module PSChartBuilder: makes the axes of a bubble chart cross in the middle of the plot area, if the
/// definition has quadrants.
void SetBubbleChartQuadrants(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

#pragma once

#include "render/plot/Plot.h"

namespace plotsmith::xlsx {
class ChartPart;
}

namespace plotsmith::render {

/// Draws the plot of a chart in 3-D: the walls, the axes with their labels, and the bodies. `outer` is the
/// space for all of them. Returns false, and draws nothing, if the chart has no group in 3-D that can be
/// drawn.
bool DrawPlot3D(xlsx::ChartPart& part, Plot& plot, const Rect& outer);

}  // namespace plotsmith::render

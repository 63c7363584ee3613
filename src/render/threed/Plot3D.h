#pragma once

#include "render/plot/Plot.h"

namespace plotsmith::xlsx {
class ChartPart;
}

namespace plotsmith::render {

/// Draws the group of a chart in 3-D: walls, axes with their labels, and the bodies. `outer` is the room for
/// all that. False if there is nothing that could be drawn so; then nothing was.
bool DrawPlot3D(xlsx::ChartPart& part, Plot& plot, const Rect& outer);

}  // namespace plotsmith::render

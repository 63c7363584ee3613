#pragma once

#include "render/plot/Plot.h"

namespace plotsmith::xlsx {
class ChartPart;
}

namespace plotsmith::render {

/// Draws a pie as a disc in the middle of `plot.area`. The elevation of the view is the angle at which the
/// disc is seen. The projection is parallel.
void DrawPie3D(xlsx::ChartPart& part, Plot& plot, const GroupModel& group);

}  // namespace plotsmith::render

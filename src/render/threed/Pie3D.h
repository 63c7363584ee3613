#pragma once

#include "render/plot/Plot.h"

namespace plotsmith::xlsx {
class ChartPart;
}

namespace plotsmith::render {

/// Draws a pie as a disc in the middle of `plot.area`. The view's elevation says how far the disc is seen
/// from above. The projection is parallel.
void DrawPie3D(xlsx::ChartPart& part, Plot& plot, const GroupModel& group);

}  // namespace plotsmith::render

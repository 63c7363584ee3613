#pragma once

#include "render/plot/Plot.h"

namespace plotsmith::xlsx {
class ChartPart;
}

namespace plotsmith::render {

/// Draws a pie as a disc that one looks at from above, as far as the view's elevation says, in the middle of
/// `plot.area`. All rays are parallel.
void DrawPie3D(xlsx::ChartPart& part, Plot& plot, const GroupModel& group);

}  // namespace plotsmith::render

#pragma once

#include "render/plot/Plot.h"
#include "render/threed/Projection.h"
#include "render/threed/Stage.h"

namespace plotsmith::render {

/// The view of a contour chart, which one looks at from above.
View ContourView();

/// Draws a surface through all values in the colours of its bands, or its lines alone where the group says
/// so. A contour chart is one that is seen from above, without light.
void DrawSurface(Plot& plot, const Stage& stage, const Projection& projection);

}  // namespace plotsmith::render

#pragma once

#include "render/plot/Plot.h"
#include "render/threed/Projection.h"
#include "render/threed/Stage.h"

namespace plotsmith::render {

/// The view of a contour chart, which is seen from above.
View ContourView();

/// Draws a surface through all values in the colours of its bands, or only its lines if the group is a
/// wireframe. A contour chart is a surface that is seen from above, without shading.
void DrawSurface(Plot& plot, const Stage& stage, const Projection& projection);

}  // namespace plotsmith::render

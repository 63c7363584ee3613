#pragma once

#include "render/plot/Plot.h"
#include "render/threed/Stage.h"

namespace plotsmith::render {

/// Draws the bars or columns of a group as bodies, from back to front.
void DrawBars3D(Plot& plot, const Stage& stage, const Projection& projection);

}  // namespace plotsmith::render

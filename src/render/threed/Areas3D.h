#pragma once

#include "render/plot/Plot.h"
#include "render/threed/Stage.h"

namespace plotsmith::render {

/// Draws the areas of a group as bodies, from back to front.
void DrawAreas3D(Plot& plot, const Stage& stage, const Projection& projection);
/// Draws the lines of a group as ribbons, from back to front.
void DrawRibbons3D(Plot& plot, const Stage& stage, const Projection& projection);

}  // namespace plotsmith::render

#pragma once

#include "render/plot/Plot.h"
#include "render/threed/Stage.h"

namespace plotsmith::render {

/// Draws the areas of a group as bodies, those that others may cover first.
void DrawAreas3D(Plot& plot, const Stage& stage, const Projection& projection);
/// Draws the lines of a group as ribbons.
void DrawRibbons3D(Plot& plot, const Stage& stage, const Projection& projection);

}  // namespace plotsmith::render

#pragma once

#include "render/Canvas.h"
#include "render/threed/Stage.h"

namespace plotsmith::xlsx {
class ChartPart;
}

namespace plotsmith::render {

/// How the walls of a chart in 3-D and its floor look.
struct WallStyles {
  ShapeStyle floor, side, back;
};
WallStyles ReadWalls(xlsx::ChartPart& part);

/// Sides of the box, 0 or 1 as shares of its axes x and z, that lie behind what is in the box.
struct FarSides {
  double x = 0, z = 1;
};
FarSides FarSidesOf(const Projection& projection);

/// Draws those walls that lie behind the bodies, and the floor, with the gridlines of all axes on them.
void DrawWalls(Canvas& canvas, const Stage& stage, const Projection& projection, const WallStyles& styles,
               xlsx::DateSystem dates);

}  // namespace plotsmith::render

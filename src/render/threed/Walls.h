#pragma once

#include "render/Canvas.h"
#include "render/threed/Stage.h"

namespace plotsmith::xlsx {
class ChartPart;
}

namespace plotsmith::render {

/// The formats of the walls and the floor of a chart in 3-D.
struct WallStyles {
  /// The looks of the floor, the side wall and the back wall (c:floor, c:sideWall, c:backWall).
  ShapeStyle floor, side, back;
};
/// Reads the formats of the walls and the floor.
WallStyles ReadWalls(xlsx::ChartPart& part);

/// The sides of the box that are behind its contents.
struct FarSides {
  /// The positions of the side wall on the axis X and of the back wall on the axis Z: 0 or 1.
  double x = 0, z = 1;
};
/// Returns the sides of the box that are behind its contents.
FarSides FarSidesOf(const Projection& projection);

/// Draws the walls behind the bodies, and the floor, with the gridlines of all axes on them.
void DrawWalls(Canvas& canvas, const Stage& stage, const Projection& projection, const WallStyles& styles,
               xlsx::DateSystem dates);

}  // namespace plotsmith::render

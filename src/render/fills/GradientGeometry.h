#pragma once

#include "render/Drawing.h"

namespace plotsmith::render {

/// Where a linear gradient begins and ends.
struct GradientLine {
  Point from, to;
};
/// The line of a linear gradient over bounds: the corners that lie farthest in its direction have the colours
/// of its first and last stop.
GradientLine LineOf(const GradientFill& gradient, const Rect& bounds);

/// The radius of a radial gradient in a square with an edge of 1, so that the farthest corner has the colour
/// of the last stop. Over other bounds the circle is stretched with the square.
double UnitRadiusOf(const GradientFill& gradient);

}  // namespace plotsmith::render

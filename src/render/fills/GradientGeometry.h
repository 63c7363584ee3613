#pragma once

#include "render/Drawing.h"

namespace plotsmith::render {

/// The line from the first to the last position of a linear gradient.
struct GradientLine {
  /// The points of the positions 0 and 1, on the picture.
  Point from, to;
};
/// Returns the line of a linear gradient over `bounds`. Its positions 0 and 1 are at the corners that are
/// farthest apart in its direction.
GradientLine LineOf(const GradientFill& gradient, const Rect& bounds);

/// Returns the radius of a radial gradient in a square with an edge of 1. Its position 1 is at the farthest
/// corner. Over other bounds, the circle is stretched with the square.
double UnitRadiusOf(const GradientFill& gradient);

}  // namespace plotsmith::render

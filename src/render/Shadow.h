#pragma once

#include "render/Drawing.h"

namespace plotsmith::render {

/// The outer shadow of a shape (a:outerShdw).
struct Shadow {
  /// The colour and the opacity of the shadow.
  Color color;
  /// The standard deviation of the soft edge, in points.
  double blur = 0;
  /// The distance from the shape to the shadow, in points.
  Point offset;
  /// The size of the shadow, as a multiple of the size of the shape.
  double scaleX = 1, scaleY = 1;
  /// The tangents of the skew angles.
  double skewX = 0, skewY = 0;
  /// The point that scaling and skewing don't move, in fractions of the bounds.
  Point fixed = {0.5, 1};

  /// Returns the outline of the shadow of a shape.
  Path Cast(const Path& shape) const;
};

}  // namespace plotsmith::render

#pragma once

#include "render/Drawing.h"

namespace plotsmith::render {

/// The shadow that a shape throws (a:outerShdw).
struct Shadow {
  Color color;
  double blur = 0;                ///< standard deviation of the soft edge, in points
  Point offset;                   ///< from the shape to the shadow, in points
  double scaleX = 1, scaleY = 1;  ///< the size of the shadow in sizes of the shape
  double skewX = 0, skewY = 0;    ///< tangents of the angles by which it leans
  Point fixed = {0.5, 1};         ///< the point that scaling and leaning keep, in fractions of the bounds

  /// The outline of the shadow of a shape.
  Path Cast(const Path& shape) const;
};

}  // namespace plotsmith::render

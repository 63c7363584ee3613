#pragma once

#include "render/Drawing.h"

namespace plotsmith::render {

/// The resolution of a picture, horizontally and vertically.
struct PixelScale {
  /// The numbers of pixels in a point.
  double x = 1, y = 1;
};

/// Returns true if all steps of an outline are horizontal or vertical.
bool IsUpright(const Path& path);
/// Returns the outline with its corners moved to the edges of pixels, or to their middles if its line is an
/// odd number of pixels wide. Then lines and edges aren't blurred, and shapes that touch have no seam between
/// them.
Path OnPixels(const Path& path, const PixelScale& scale, double strokeWidth);
/// Returns the width in points that is nearest to a whole number of pixels, and at least one pixel.
double WidthOnPixels(double width, const PixelScale& scale);

}  // namespace plotsmith::render

#pragma once

#include "render/Drawing.h"

namespace plotsmith::render {

/// How many pixels of a picture a point takes, across and down.
struct PixelScale {
  double x = 1, y = 1;
};

/// Whether all of an outline runs across or down.
bool IsUpright(const Path& path);
/// The outline with its corners on the edges of pixels; or in their middle if it is drawn with a line of an
/// odd number of pixels. Then lines and edges aren't blurred, and pieces that touch have no seam between
/// them.
Path OnPixels(const Path& path, const PixelScale& scale, double strokeWidth);
/// A width in points that is a whole number of pixels, and at least one.
double WidthOnPixels(double width, const PixelScale& scale);

}  // namespace plotsmith::render

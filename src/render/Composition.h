#pragma once

#include "render/Drawing.h"

namespace plotsmith::render {

/// Returns the drawing with all lengths multiplied by `scale`, also those of fonts and lines.
Drawing Scaled(const Drawing& drawing, double scale);

/// Appends a drawing to a page, with all lengths multiplied by `scale` and its top left corner at `corner`.
/// Items are clipped to the bounds of the appended drawing.
void Place(Drawing& page, const Drawing& drawing, Point corner, double scale = 1);

}  // namespace plotsmith::render

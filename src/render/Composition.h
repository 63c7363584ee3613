#pragma once

#include "render/Drawing.h"

namespace plotsmith::render {

/// The drawing, larger or smaller in all its lengths.
Drawing Scaled(const Drawing& drawing, double scale);

/// Appends the items of a drawing to another one, with its corner at a point, larger or smaller. What sticks
/// out of the drawing's own bounds isn't seen.
void Place(Drawing& page, const Drawing& drawing, Point corner, double scale = 1);

}  // namespace plotsmith::render

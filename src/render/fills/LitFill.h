#pragma once

#include "render/Drawing.h"

namespace plotsmith::render {

/// Returns a colour with its channels multiplied by `light`, which is 1 for the colour itself.
Color Lit(const Color& color, double light);
/// Returns a fill with the channels of all its colours multiplied by `light`.
Fill Lit(const Fill& fill, double light);
/// Returns a thin line in the colour of a fill, for faces without a line of their own. Without it, a hairline
/// of the background would show between neighbouring faces, because their edges are smoothed. Transparent
/// fills and patterns get no line.
Stroke SeamOf(const Fill& fill);
/// Returns the main colour of a fill: the background of a pattern, and the first colour of a gradient. It is
/// transparent if there is no fill.
Color MainColor(const Fill& fill);

}  // namespace plotsmith::render

#pragma once

#include "render/Drawing.h"

namespace plotsmith::render {

Color Lit(const Color& color, double light);
/// A filling with all of its colours lit.
Fill Lit(const Fill& fill, double light);
/// A thin line in the colour of a filling, for faces without a line of their own: neighbours would show a
/// hairline of what is behind them where their edges are smoothed. None for what one looks through.
Stroke SeamOf(const Fill& fill);
/// The colour that a filling has at first sight: of a pattern the ground, of a gradient its beginning.
Color MainColor(const Fill& fill);

}  // namespace plotsmith::render

#pragma once

#include "render/plot/Plot.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {

/// The size that Excel gives a label around its text.
inline constexpr double kLabelPadding = 2;

/// Whether a pie's label has room inside of its slice, at the edge; `size` is with its padding.
bool FitsInSlice(const DrawnPoint& slice, double width, double height);
/// Draws the labels of all points that were drawn.
void DrawDataLabels(Plot& plot);

}  // namespace plotsmith::render

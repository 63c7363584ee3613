#pragma once

#include "render/plot/Plot.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {

/// The padding to the left and right of the text of a label, in points.
inline constexpr double kLabelPadding = 2;

/// Returns true if a label fits into its slice, near the edge. `width` and `height` include its padding, in
/// points.
bool FitsInSlice(const DrawnPoint& slice, double width, double height);
/// Draws the labels of all points in Plot::points.
void DrawDataLabels(Plot& plot);

}  // namespace plotsmith::render

#pragma once

#include "render/plot/Plot.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {

/// The padding to the left and right of the text of a label, in points.
inline constexpr double kLabelPadding = 2;

/// Returns true if a label fits into its slice near the outer edge. `width` and `height` include its padding,
/// in points.
bool FitsInSlice(const DrawnPoint& slice, double width, double height);
/// Returns true if the label of a rectangle in a bar of pie is to the right of the bar. `position` is a value
/// of ST_DLblPos. `width` and `height` include the padding of the label, in points.
bool IsBesidePiece(const DrawnPoint& piece, const std::string& position, double width, double height);
/// Draws the labels of all points in Plot::points.
void DrawDataLabels(Plot& plot);

}  // namespace plotsmith::render

#pragma once

#include <cstddef>
#include <vector>

#include "render/plot/Plot.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {

/// A data label with its place.
struct PlacedLabel {
  const DrawnPoint* point = nullptr;
  const LabelModel* label = nullptr;
  TextBlock block;
  double keyRoom = 0;  ///< room for a legend key before the text, in points
  double halfWidth = 0, halfHeight = 0;
  Point center;
  bool moved = false;  ///< away from its automatic place
  bool leftOut = false;

  /// The rectangle of the label.
  Rect Box() const { return {center.x - halfWidth, center.y - halfHeight, 2 * halfWidth, 2 * halfHeight}; }
};

/// Returns whether a label doesn't cover the circle of its slice, or the ellipse and the rim of a pie in 3-D.
bool IsBesideSlice(const DrawnPoint& point, const Rect& label);

/// Moves labels outside of pies so that they don't touch. They stay on their side of the circle and in the
/// plot area. If there is no room for all of them, the labels of the smallest slices are removed. Returns how
/// many were removed.
std::size_t SpreadPieLabels(const Plot& plot, std::vector<PlacedLabel>& labels);

}  // namespace plotsmith::render

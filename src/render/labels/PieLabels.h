#pragma once

#include <cstddef>
#include <vector>

#include "render/plot/Plot.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {

/// A data label with its position.
struct PlacedLabel {
  const DrawnPoint* point = nullptr;  ///< The point.
  const LabelModel* label = nullptr;  ///< What the label shows.
  TextBlock block;                    ///< The text, broken into lines.
  /// The space for a legend key before the text, in points.
  double keyRoom = 0;
  /// Half of the size of the label, in points.
  double halfWidth = 0, halfHeight = 0;
  Point center;          ///< The middle of the label.
  bool moved = false;    ///< Whether the label isn't at its automatic position.
  bool leftOut = false;  ///< Whether the label isn't drawn because there is no space for it.

  /// The rectangle of the label.
  Rect Box() const { return {center.x - halfWidth, center.y - halfHeight, 2 * halfWidth, 2 * halfHeight}; }
};

/// Returns true if a label doesn't cover its point: the circle of its slice, the ellipse and the rim of a pie
/// in 3-D, or the rectangle in a bar of pie.
bool IsBesideSlice(const DrawnPoint& point, const Rect& label);

/// Moves labels outside of pies so that they don't touch. They stay on their side of the circle and in the
/// plot area. If there isn't enough space for all of them, the labels of the smallest slices are removed.
/// Returns the number of removed labels.
std::size_t SpreadPieLabels(const Plot& plot, std::vector<PlacedLabel>& labels);

}  // namespace plotsmith::render

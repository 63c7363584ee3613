#pragma once

#include <cstddef>
#include <vector>

#include "render/plot/Plot.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {

/// A data label with the place where it is drawn.
struct PlacedLabel {
  const DrawnPoint* point = nullptr;
  const LabelModel* label = nullptr;
  TextBlock block;
  double keyRoom = 0;  ///< that a legend key takes in front of the text
  double halfWidth = 0, halfHeight = 0;
  Point center;
  bool moved = false;  ///< away from where it belongs by itself
  bool leftOut = false;

  Rect Box() const { return {center.x - halfWidth, center.y - halfHeight, 2 * halfWidth, 2 * halfHeight}; }
};

/// Whether a label keeps clear of its slice's circle, or of the ellipse of a pie in 3-D and of its rim below.
bool IsBesideSlice(const DrawnPoint& point, const Rect& label);

/// Moves labels outside of pies apart, up and down on their side of the circle, as long as they stay in the
/// plot area. Those for which there is no room at all are removed, the smallest slices' first. Returns how
/// many.
std::size_t SpreadPieLabels(const Plot& plot, std::vector<PlacedLabel>& labels);

}  // namespace plotsmith::render

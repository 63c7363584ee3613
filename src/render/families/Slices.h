#pragma once

#include <cstddef>
#include <vector>

#include "render/plot/Plot.h"

namespace plotsmith::render {

/// The minimum radius to which labels outside of a pie can reduce it, as a share of the full radius.
inline constexpr double kLeastRadius = 0.3;
/// The number of times that a circle is made smaller for the labels beside it. Labels that fit into the
/// slices of a large circle may not fit into those of a smaller one, and then they need room too.
inline constexpr int kLabelPasses = 2;

/// Returns the largest distance by which one of the slices is moved outwards, in radii.
double FarthestExplosion(const std::vector<DrawnPoint>& slices);

/// Returns the slices of all points of a series, in a circle of radius 1 around the origin.
std::vector<DrawnPoint> SlicesOf(const GroupModel& group, const SeriesModel& series);
/// Returns the slices of some points of a series, by index from 0. Their shares are those in the sum of these
/// points.
std::vector<DrawnPoint> SlicesOf(const GroupModel& group, const SeriesModel& series,
                                 const std::vector<std::size_t>& points);

/// The space that labels outside of a circle take, in points.
struct LabelRoom {
  double left = 0;    ///< To the left of the circle.
  double right = 0;   ///< To its right.
  double height = 0;  ///< Above it, and the same below it.
};
/// Returns the space that the labels of slices take outside of a circle. `radius` is in points.
LabelRoom RoomForLabels(const Plot& plot, const std::vector<DrawnPoint>& slices, double radius);

/// A circle or a ring.
struct Ring {
  Point center;          ///< In points.
  double radius = 0;     ///< The outer radius in points.
  double hole = 0;       ///< The inner radius as a share of the outer one; 0 for a circle.
  bool explodes = true;  ///< Whether slices are moved outwards by the explosion of their points.

  /// Returns the rectangle around the circle that a slice is part of.
  Rect CircleOf(const DrawnPoint& slice) const;
};
/// Draws slices, and adds those with labels to Plot::points.
void DrawSlices(Plot& plot, std::vector<DrawnPoint> slices, const Ring& ring);

}  // namespace plotsmith::render

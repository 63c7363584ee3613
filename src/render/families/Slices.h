#pragma once

#include <cstddef>
#include <vector>

#include "render/plot/Plot.h"

namespace plotsmith::render {

/// The smallest share of the radius of a pie that labels outside of it leave.
inline constexpr double kLeastRadius = 0.3;

/// Returns how far a slice is moved outwards, in radii. `point` counts from 0.
double ExplosionOf(const SeriesModel& series, std::size_t point);
/// Returns how far the farthest of some slices is moved outwards, in radii.
double FarthestExplosion(const std::vector<DrawnPoint>& slices);

/// Returns the slices of all points of a series, in a circle of radius 1 around the origin.
std::vector<DrawnPoint> SlicesOf(const GroupModel& group, const SeriesModel& series);
/// Returns the slices of some points of a series, by index from 0. Their shares are those in the sum of these
/// points.
std::vector<DrawnPoint> SlicesOf(const GroupModel& group, const SeriesModel& series,
                                 const std::vector<std::size_t>& points);

/// The room that labels outside of a circle take, in points: at its left, at its right, and above and below.
struct LabelRoom {
  double left = 0, right = 0, height = 0;
};
/// Returns the room that the labels of slices take outside of a circle with a radius in points.
LabelRoom RoomForLabels(const Plot& plot, const std::vector<DrawnPoint>& slices, double radius);

/// A circle or a ring. `hole` is the inner radius as a share of the outer one.
struct Ring {
  Point center;
  double radius = 0, hole = 0;
  bool explodes = true;

  /// Returns the rectangle around the circle that a slice is part of.
  Rect CircleOf(const DrawnPoint& slice) const;
};
/// Draws slices, and keeps them for their labels.
void DrawSlices(Plot& plot, std::vector<DrawnPoint> slices, const Ring& ring);

}  // namespace plotsmith::render

#pragma once

#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Where an axis is: x of a vertical axis, y of a horizontal one, and the sides of its labels and outer tick
/// marks.
struct AxisPlace {
  double at = 0;                 ///< place of the line, in points
  Side side = Side::kLeft;       ///< side of the line on which the outer marks are
  double labelsAt = 0;           ///< place where the gap before the labels begins, in points
  Side labelSide = Side::kLeft;  ///< side of that place on which the labels are
};

/// Returns the value at which a category axis crosses an axis of values. It is on the scale.
double CrossingValue(const AxisModel& values, const AxisModel& category);
/// Returns where an axis is at the plot area `plot`.
AxisPlace PlaceOf(const ChartModel& chart, const AxisModel& axis, const Rect& plot);
/// Returns the coordinate of a side of a rectangle.
double EdgeOf(const Rect& rect, Side side);
/// Returns the opposite side.
Side Opposite(Side side);

}  // namespace plotsmith::render

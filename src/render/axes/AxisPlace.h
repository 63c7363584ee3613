#pragma once

#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// The position of an axis, and the sides of its labels and outer tick marks. Positions are X coordinates of
/// a vertical axis and Y coordinates of a horizontal one.
struct AxisPlace {
  double at = 0;                 ///< The position of the line, in points.
  Side side = Side::kLeft;       ///< The side of the line on which the outer tick marks are.
  double labelsAt = 0;           ///< The position of the gap before the labels, in points.
  Side labelSide = Side::kLeft;  ///< The side of that position on which the labels are.
};

/// Returns the value at which a category axis crosses a value axis. The value is on the scale.
double CrossingValue(const AxisModel& values, const AxisModel& category);
/// Returns the position of an axis of the plot area `plot`.
AxisPlace PlaceOf(const ChartModel& chart, const AxisModel& axis, const Rect& plot);
/// Returns the coordinate of a side of a rectangle.
double EdgeOf(const Rect& rect, Side side);
/// Returns the opposite side.
Side Opposite(Side side);

}  // namespace plotsmith::render

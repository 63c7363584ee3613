#pragma once

#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Where an axis lies across itself: x of an upright axis, y of a flat one, and the sides that its labels and
/// its outer tick marks point to.
struct AxisPlace {
  double at = 0;            ///< of the line
  Side side = Side::kLeft;  ///< of the line that the labels and the outer marks are on
  double labelsAt = 0;      ///< where the labels begin, without the gap
  Side labelSide = Side::kLeft;
};

/// The value at which a category axis crosses an axis of values.
double CrossingValue(const AxisModel& values, const AxisModel& category);
AxisPlace PlaceOf(const ChartModel& chart, const AxisModel& axis, const Rect& plot);
/// The edge of a rectangle on a side.
double EdgeOf(const Rect& rect, Side side);
Side Opposite(Side side);

}  // namespace plotsmith::render

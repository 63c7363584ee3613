#pragma once

#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Sets the scales of all axes of values from the data of their groups.
void ScaleAxes(ChartModel& chart);
/// Rescales an axis of values with the next larger major unit of the sequence 1, 2, 5, 10, 20, ...
void CoarsenScale(AxisModel& axis);

}  // namespace plotsmith::render

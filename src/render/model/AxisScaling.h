#pragma once

#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Scales the axes of values by the data of their groups.
void ScaleAxes(ChartModel& chart);
/// Gives an axis the next larger major unit of 1, 2, 5, 10, ...
void CoarsenScale(AxisModel& axis);

}  // namespace plotsmith::render

#pragma once

#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Sets the scales of all value axes from the data of their groups.
void ScaleAxes(ChartModel& chart);
/// Rescales a value axis with the next larger major unit of the sequence 1, 2, 5, 10, 20 and so on.
void CoarsenScale(AxisModel& axis);

}  // namespace plotsmith::render

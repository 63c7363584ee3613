#pragma once

#include "render/Drawing.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Sets the title of a drawing, and a description with the values of the chart, for screen readers.
void Describe(const ChartModel& chart, Drawing& drawing);

}  // namespace plotsmith::render

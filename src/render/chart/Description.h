#pragma once

#include "render/Drawing.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Gives a drawing a title and a description with the values of the chart, for readers who don't see it.
void Describe(const ChartModel& chart, Drawing& drawing);

}  // namespace plotsmith::render

#pragma once

#include "render/Canvas.h"
#include "render/axes/TickLabels.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

void DrawGridlines(Canvas& canvas, const ChartModel& chart, const AxisModel& axis, const Rect& plot);
/// The line of an axis with its tick marks.
void DrawAxisLine(Canvas& canvas, const ChartModel& chart, const AxisModel& axis, const Rect& plot);
void DrawTickLabels(Canvas& canvas, const ChartModel& chart, const AxisModel& axis, const TickLabels& labels,
                    const Rect& plot);

}  // namespace plotsmith::render

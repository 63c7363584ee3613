#pragma once

#include "render/Canvas.h"
#include "render/axes/TickLabels.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Draws the gridlines of an axis over the plot area `plot`.
void DrawGridlines(Canvas& canvas, const ChartModel& chart, const AxisModel& axis, const Rect& plot);
/// Draws the line of an axis with its tick marks.
void DrawAxisLine(Canvas& canvas, const ChartModel& chart, const AxisModel& axis, const Rect& plot);
/// Draws the laid out labels of an axis beside the plot area `plot`.
void DrawTickLabels(Canvas& canvas, const ChartModel& chart, const AxisModel& axis, const TickLabels& labels,
                    const Rect& plot);

}  // namespace plotsmith::render

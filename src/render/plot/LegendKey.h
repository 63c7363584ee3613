#pragma once

#include "render/Canvas.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Returns true if the legend key of a series is a line. Otherwise it is a square with the fill of the
/// series.
bool HasLineKey(const ChartModel& chart, int series);

/// Draws the legend key of a series or point into a rectangle. `tag` has their numbers from 1; its point is 0
/// for the key of a series.
void DrawKey(Canvas& canvas, const ChartModel& chart, Tag tag, const Rect& box);

}  // namespace plotsmith::render

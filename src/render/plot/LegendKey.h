#pragma once

#include "render/Canvas.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Whether the key of a series in a legend is a line; else it is a square of its filling.
bool HasLineKey(const ChartModel& chart, int series);

/// The sign for a series in a rectangle: a piece of its filling, or of its line with a marker.
void DrawKey(Canvas& canvas, const ChartModel& chart, Tag tag, const Rect& box);

}  // namespace plotsmith::render

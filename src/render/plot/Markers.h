#pragma once

#include "render/Canvas.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Draws a marker around a point.
void DrawMarker(Canvas& canvas, Tag tag, const MarkerModel& marker, Point center);

}  // namespace plotsmith::render

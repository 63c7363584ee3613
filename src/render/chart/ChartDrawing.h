#pragma once

#include "render/Drawing.h"
#include "render/Notes.h"
#include "render/TextMeasure.h"

namespace plotsmith::xlsx {
class ChartPart;
}

namespace plotsmith::render {

/// Draws a chart. `width` and `height` are in points. The values are those of the caches in the chart part,
/// or those of the cells where the part has no cache. The chart part isn't changed. What isn't drawn is added
/// to `notes`. Raises error 1004 if the chart can't be read.
Drawing DrawChart(xlsx::ChartPart& part, double width, double height, const TextMeasure& measure,
                  Notes& notes);

}  // namespace plotsmith::render

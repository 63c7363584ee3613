#pragma once

#include "render/Drawing.h"
#include "render/Notes.h"
#include "render/TextMeasure.h"

namespace plotsmith::xlsx {
class ChartPart;
}

namespace plotsmith::render {

/// Draws a chart at a size in points. Values come from the caches in the chart part, or from the cells where
/// the part has none. A chart that can't be read is error 1004. The chart part stays as it is.
Drawing DrawChart(xlsx::ChartPart& part, double width, double height, const TextMeasure& measure,
                  Notes& notes);

}  // namespace plotsmith::render

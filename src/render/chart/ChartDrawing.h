#pragma once

#include <string>
#include <vector>

#include "render/Drawing.h"
#include "render/TextMeasure.h"

namespace plotsmith::xlsx {
class ChartPart;
}

namespace plotsmith::render {

/// What could not be drawn, one sentence each.
using Notes = std::vector<std::string>;

/// Draws a chart at a size in points. Values come from the caches in the chart part, or from the cells where
/// the part has none. A chart that can't be read is error 1004. The chart part stays as it is.
Drawing DrawChart(xlsx::ChartPart& part, double width, double height, const TextMeasure& measure,
                  Notes& notes);

}  // namespace plotsmith::render

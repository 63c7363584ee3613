#pragma once

#include "xlsx/drawing/ShapeXml.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The plot area with its tick labels, in a chart of a size: as the chart's layout says, or as Excel lays it
/// out by itself, which is an estimate.
Frame PlotAreaFrame(ChartPart& part, const Frame& chart);
/// Lays the plot area out by hand, so that what isn't set stays as it reads now. What would leave the chart
/// ends at its inner edge. Error 1004 for no width at all.
void SetPlotAreaWidth(ChartPart& part, const Frame& chart, double width);

}  // namespace plotsmith::xlsx

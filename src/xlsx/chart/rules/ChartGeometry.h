#pragma once

#include "xlsx/drawing/ShapeXml.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The plot area with its tick labels, in points, in a chart of the size `chart`. Without a manual layout
/// this is an estimate of Excel's layout.
Frame PlotAreaFrame(ChartPart& part, const Frame& chart);
/// Gives the plot area a manual layout with this width, in points; its position and height don't change. A
/// width that would extend beyond the chart ends at the chart's margin. Raises error 1004 for a width that
/// isn't positive.
void SetPlotAreaWidth(ChartPart& part, const Frame& chart, double width);

}  // namespace plotsmith::xlsx

#pragma once

#include <memory>

#include "xlsx/drawing/ShapeXml.h"

namespace plotsmith::xlsx {

class ChartPart;
class DrawnShape;

/// Width and height of a chart, in points: those of the shape that frames it, or of a chart sheet's page.
Frame ChartSize(const std::weak_ptr<DrawnShape>& frame);

/// The plot area with its tick labels, in a chart of a size: as the chart's layout says, or as Excel lays it
/// out by itself, which is an estimate.
Frame PlotAreaFrame(ChartPart& part, const Frame& chart);
/// Lays the plot area out by hand, so that what isn't set stays as it reads now. What would leave the chart
/// ends at its inner edge. Error 1004 for no width at all.
void SetPlotAreaWidth(ChartPart& part, const Frame& chart, double width);

}  // namespace plotsmith::xlsx

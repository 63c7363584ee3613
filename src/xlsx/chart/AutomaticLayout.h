#pragma once

#include "xlsx/drawing/ShapeXml.h"

/// How Excel lays a chart out where nobody did it by hand, estimated from the sizes of its texts. Points.
namespace plotsmith::xlsx {

class ChartPart;

/// What Excel leaves free inside of a chart's edge.
inline constexpr double kChartInset = 7;

struct Edges {
  double left = 0, top = 0, right = 0, bottom = 0;
};

/// The plot area with its tick labels: what title, legend and axis titles leave.
Frame AutomaticPlotArea(ChartPart& part, const Frame& chart);
/// The room that the tick labels take around the axes.
Edges TickLabelRoom(ChartPart& part);

}  // namespace plotsmith::xlsx

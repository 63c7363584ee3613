#pragma once

#include "xlsx/drawing/ShapeXml.h"

/// An estimate of Excel's layout for charts without a manual layout, from the sizes of their texts, in
/// points.
namespace plotsmith::xlsx {

class ChartPart;

// Excel's layout is not documented. With these constants, the layout of simple charts differs from Excel's by
// a few points at most.
inline constexpr double kChartInset = 7;      ///< The margin inside the edge of a chart.
inline constexpr double kTitlePadding = 7.2;  ///< The sum of the padding above and below the text of a title.
/// The share of the width of the chart at which a title is wrapped.
inline constexpr double kTitleShare = 0.8;
inline constexpr double kTitleGap = 5;  ///< The gap between the title of the chart and the plot area.
inline constexpr double kLabelGap = 5;  ///< The gap between an axis and its labels.
/// The minimum share of the chart's width and height that the plot area takes.
inline constexpr double kLeastShare = 0.1;

/// The space at the four sides of a rectangle, in points.
struct Edges {
  /// The distances from the edges to the contents.
  double left = 0, top = 0, right = 0, bottom = 0;
};

/// Returns the plot area with its tick labels: the space that title, legend and axis titles leave.
Frame AutomaticPlotArea(ChartPart& part, const Frame& chart);
/// Returns the space that the tick labels take around the axes.
Edges TickLabelRoom(ChartPart& part);

}  // namespace plotsmith::xlsx

#pragma once

#include "xlsx/drawing/ShapeXml.h"

/// The layout that Excel gives a chart without a manual layout, estimated from the sizes of its texts, in
/// points.
namespace plotsmith::xlsx {

class ChartPart;

// Excel's layout is not documented. With these constants plain charts come out as Excel draws them, to within
// a few points.
inline constexpr double kChartInset = 7;  ///< the margin inside the edge of a chart
inline constexpr double kTitlePadding =
    7.2;                                    ///< above and below a title's text together: a text box's insets
inline constexpr double kTitleShare = 0.8;  ///< of the chart's width, before a title breaks
inline constexpr double kTitleGap = 5;      ///< between the chart's title and the plot area
inline constexpr double kLabelGap = 5;      ///< between an axis and its labels
/// The share of the chart that the plot area has at least.
inline constexpr double kLeastShare = 0.1;

/// The room at the four sides of a rectangle, in points.
struct Edges {
  double left = 0, top = 0, right = 0, bottom = 0;
};

/// The plot area with its tick labels: the room that title, legend and axis titles leave.
Frame AutomaticPlotArea(ChartPart& part, const Frame& chart);
/// The room that the tick labels take around the axes.
Edges TickLabelRoom(ChartPart& part);

}  // namespace plotsmith::xlsx

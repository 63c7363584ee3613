#pragma once

#include "xlsx/drawing/ShapeXml.h"

/// How Excel lays a chart out where nobody did it by hand, estimated from the sizes of its texts. Points.
namespace plotsmith::xlsx {

class ChartPart;

// Excel's layout is nowhere written down. These make plain charts come out as Excel draws them, to a few
// points.
inline constexpr double kChartInset = 7;  ///< what Excel leaves free inside of a chart's edge
inline constexpr double kTitlePadding =
    7.2;                                    ///< above and below a title's text together: a text box's insets
inline constexpr double kTitleShare = 0.8;  ///< of the chart's width, before a title breaks
inline constexpr double kTitleGap = 5;      ///< between the chart's title and the plot area
inline constexpr double kLabelGap = 5;      ///< between an axis and its labels
/// Of the chart that the plot area keeps, whatever the texts take.
inline constexpr double kLeastShare = 0.1;

struct Edges {
  double left = 0, top = 0, right = 0, bottom = 0;
};

/// The plot area with its tick labels: what title, legend and axis titles leave.
Frame AutomaticPlotArea(ChartPart& part, const Frame& chart);
/// The room that the tick labels take around the axes.
Edges TickLabelRoom(ChartPart& part);

}  // namespace plotsmith::xlsx

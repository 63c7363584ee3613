#pragma once

#include <pugixml.hpp>
#include <vector>

#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/ChartTypes.h"

/// The plot groups of a chart and their series.
namespace plotsmith::xlsx {

/// The groups that have a series, in the order in which they are drawn: areas, columns, lines, points.
std::vector<pugi::xml_node> DrawnGroups(ChartPart& part);

/// All series, in plot order.
std::vector<pugi::xml_node> SeriesOf(ChartPart& part);
/// A new, empty series at the end, of the type of the last one; without one, in the first group. A chart
/// without a group gets one of clustered columns. As Excel does it. A stock chart with more than four series
/// becomes a line chart.
SeriesRef AddSeries(ChartPart& part);
/// Deletes a series and its entry in the legend. The group stays, also without a series, and with it what
/// somebody gave the group. A stock chart becomes a line chart, because it can't have fewer than three
/// series.
void DeleteSeries(ChartPart& part, const SeriesRef& series);

/// Moves all series into one group of the type. What the type before had, and this one can't have, is laid
/// aside and comes back when the chart returns to that type: a refresh draws every chart as clustered bars
/// first, and a chart that somebody dressed must come out of that as it went in.
void SetType(ChartPart& part, const ChartTypeEntry& type);
/// Moves one series into a group of the type that shares the axes of the others. Series of a kind are in one
/// group, so that another stacking of columns takes all columns with it. Error 1004 where the type can't
/// stand beside the others.
void SetSeriesType(ChartPart& part, pugi::xml_node series, const ChartTypeEntry& type);

/// Completes a changed chart before it is written. A chart without a group gets an empty one of clustered
/// columns with hidden axes, as Excel writes a chart without data. The linked number formats of axes are
/// brought up to date.
void CompleteChart(ChartPart& part);

}  // namespace plotsmith::xlsx

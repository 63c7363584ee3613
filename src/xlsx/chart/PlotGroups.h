#pragma once

#include <pugixml.hpp>
#include <vector>

#include "xlsx/chart/ChartPart.h"
#include "xlsx/chart/ChartTypes.h"

/// The plot groups of a chart and their series.
namespace plotsmith::xlsx {

/// All groups, in the order of the part.
std::vector<pugi::xml_node> GroupsOf(ChartPart& part);
/// Those that have a series, in the order in which they are drawn: areas, columns, lines, points.
std::vector<pugi::xml_node> DrawnGroups(ChartPart& part);

/// All series, in plot order.
std::vector<pugi::xml_node> SeriesOf(ChartPart& part);
/// A new, empty series at the end, of the type of the last one; without one, in the first group. A chart
/// without a group gets one of clustered columns. As Excel does it.
SeriesRef AddSeries(ChartPart& part);
/// Deletes a series, and what hangs on it in the legend. Its group stays, also as the last one's: there is
/// what somebody gave it.
void DeleteSeries(ChartPart& part, const SeriesRef& series);

/// Moves all series into one group of the type. What the type before had, and this one can't have, is laid
/// aside and comes back when the chart returns to that type: a refresh draws every chart as clustered bars
/// first, and a chart that somebody dressed must come out of that as it went in.
void SetType(ChartPart& part, const ChartTypeEntry& type);
/// Moves one series into a group of the type that shares the axes of the others. Series of a kind are in one
/// group, so that another stacking of columns takes all columns with it. Error 1004 where the type can't
/// stand beside the others.
void SetSeriesType(ChartPart& part, pugi::xml_node series, const ChartTypeEntry& type);

}  // namespace plotsmith::xlsx

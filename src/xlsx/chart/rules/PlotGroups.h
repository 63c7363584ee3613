#pragma once

#include <pugixml.hpp>
#include <vector>

#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/ChartTypes.h"

/// The plot groups of a chart and their series.
namespace plotsmith::xlsx {

/// The groups that contain a series, in drawing order: areas, columns, lines, points.
std::vector<pugi::xml_node> DrawnGroups(ChartPart& part);

/// All series, in plot order.
std::vector<pugi::xml_node> SeriesOf(ChartPart& part);
/// Adds an empty series at the end. As in Excel, it has the type of the last series. In a chart without
/// series it belongs to the first group; a chart without a group gets one of clustered columns. A stock chart
/// with more than four series becomes a line chart.
SeriesRef AddSeries(ChartPart& part);
/// Deletes a series and its legend entry. The group keeps its settings and stays, even without a series. A
/// stock chart becomes a line chart, because a stock chart has at least three series.
void DeleteSeries(ChartPart& part, const SeriesRef& series);

/// Moves all series into one group of the type. Elements that the type can't have are set aside, and restored
/// when the chart gets its former type again. Each refresh draws the chart as clustered bars first, and must
/// not lose the user's formatting.
void SetType(ChartPart& part, const ChartTypeEntry& type);
/// Moves one series into a group of the type, on the axes of the other groups. All series of a kind share a
/// group, so a change in the stacking of columns applies to all columns. Raises error 1004 if the types can't
/// be combined.
void SetSeriesType(ChartPart& part, pugi::xml_node series, const ChartTypeEntry& type);

/// Completes a changed chart before it is written. A chart without a group gets an empty one of clustered
/// columns with hidden axes, as Excel writes a chart without data. The linked number formats of axes are
/// updated.
void CompleteChart(ChartPart& part);

}  // namespace plotsmith::xlsx

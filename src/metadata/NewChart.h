#pragma once

#include <string>

/// Module PSFunctions: the identity and the position of a new chart. A chart has an id, which is never shown
/// and never changes; a name for lists, which is unique ignoring case; and a title, which the chart shows.
namespace plotsmith {

/// Makes `oChartDoc` for a new chart and sets `sChartID`. The document is neither saved nor added to
/// `colCharts`.
void CreateChartDoc();
/// Returns the first id that no loaded chart has. The number of a deleted chart is used again.
std::string NextChartID();
/// Returns the part of an id after "VEX_Chart". It is empty for other texts.
std::string ChartNumber(const std::string& sID);
/// Returns true if a chart other than the current one has the name, ignoring case.
bool ChartNameInUse(const std::string& sName);
/// Adds the empty frame of a new chart to a sheet and to `colChartObjects`.
void CreateEmptyChart(const std::string& sSheetName, const std::string& sID);

}  // namespace plotsmith

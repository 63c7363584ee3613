#pragma once

#include <string>

/// Module PSFunctions: a new chart's identity and its place in the workbook. A chart has an id, which is
/// never shown and never changes; a name, unique ignoring case, which lists show; and a title, which stands
/// on the chart.
namespace plotsmith {

/// Makes `oChartDoc` for a new chart and sets `sChartID`. It is neither saved nor entered in `colCharts`
/// here.
void CreateChartDoc();
/// The first id that no loaded chart holds; the number of a deleted chart is used again.
std::string NextChartID();
/// What follows "VEX_Chart" in an id; empty for what is no such id.
std::string ChartNumber(const std::string& sID);
/// Whether a chart other than the one in hand has the name, ignoring case.
bool ChartNameInUse(const std::string& sName);
/// Puts the empty frame of a new chart on a sheet and enters it in `colChartObjects`.
void CreateEmptyChart(const std::string& sSheetName, const std::string& sID);

}  // namespace plotsmith

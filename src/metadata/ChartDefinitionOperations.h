#pragma once

#include <string>
#include <vector>

/// Module PSFunctions: a chart's identity and its place in the workbook, and the names of columns in
/// definitions. A chart has an id, which nobody sees and which never changes; a name, unique ignoring case,
/// which lists show; and a title, which stands on the chart.
namespace plotsmith {

/// Makes `oChartDoc` for a new chart and sets `sChartID`. It is neither saved nor entered in `colCharts`
/// here.
void CreateChartDoc();
/// The first id that no loaded chart holds; the number of a deleted chart is used again.
std::string NextChartID();
/// Whether a chart other than the one in hand has the name, ignoring case.
bool ChartNameInUse(const std::string& sName);
/// Puts the empty frame of a new chart on a sheet and enters it in `colChartObjects`.
void CreateEmptyChart(const std::string& sSheetName, const std::string& sID);
/// Carries a renaming of columns of one table into all definitions and saves them. The names are taken in
/// order, and a new name is visible to those behind it.
void UpdateChartColumnNames(const std::string& sTableRangeName,
                            const std::vector<std::string>& aOldColumnNames,
                            const std::vector<std::string>& aNewColumnNames);

}  // namespace plotsmith

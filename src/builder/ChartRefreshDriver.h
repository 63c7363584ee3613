#pragma once

#include <cstdint>
#include <string>

/// Module PSChartBuilder: rebuilds one chart, all charts, or the charts of one table.
namespace plotsmith {

/// The tasks that the busy window can run (`lMethodType` of the window).
namespace busy {
inline constexpr std::int32_t kAllCharts = 0;  ///< PopulateAllCharts
inline constexpr std::int32_t kOneChart = 1;   ///< PopulateChart
inline constexpr std::int32_t kRun = 2;        ///< the whole run
}  // namespace busy

/// Shows the busy window, which runs a task, and returns when the task is done. The first argument is a
/// constant of `busy`, the second is the id of the chart for kOneChart. The controller sets this procedure,
/// because this module must not depend on the window.
extern void (*ShowBusyWindow)(std::int32_t lMethodType, const std::string& sChartID);

/// Rebuilds all charts inside the busy window, or without it on a host up to version 11.
void RefreshAllCharts();
/// Rebuilds one chart in the same way.
void RefreshChart(const std::string& sID);
/// Rebuilds the charts that use the table as their source or as their bucket table. Searches the tables
/// again, because this one has just changed. Saves every definition.
void PopulateModifiedCharts(const std::string& sTableRangeName);

/// The task for all charts, which the busy window calls. Saves the definition of each chart after its build.
void PopulateAllCharts();
/// Checks the definition, pivots the table, writes the data block and draws the chart. A chart that can't be
/// built loses its series and gets a crosshatched area, unless its area has its own colour; the next
/// successful build removes the crosshatching. The definition isn't saved.
void PopulateChart(const std::string& sID);

}  // namespace plotsmith

#pragma once

#include <cstdint>
#include <string>

/// Module PSChartBuilder: rebuilds one chart, all charts, or the charts of one table.
namespace plotsmith {

/// The tasks that the busy window can run (`lMethodType` of the window).
namespace busy {
inline constexpr std::int32_t kAllCharts = 0;  ///< PopulateAllCharts
inline constexpr std::int32_t kOneChart = 1;   ///< PopulateChart
inline constexpr std::int32_t kRun = 2;        ///< a whole run
}  // namespace busy

/// Shows the busy window, which runs a task, and returns when the task is done. The first argument is one of
/// `busy`, the second the id of the one chart. This module doesn't know the window, so the controller sets
/// the procedure.
extern void (*ShowBusyWindow)(std::int32_t lMethodType, const std::string& sChartID);

/// Rebuilds all charts behind the busy window; without the window on a host up to version 11.
void RefreshAllCharts();
/// The same for one chart.
void RefreshChart(const std::string& sID);
/// Rebuilds the charts that have the table as their source or as their bucket table. The tables are
/// discovered anew, because this one has just changed. Every definition is saved.
void PopulateModifiedCharts(const std::string& sTableRangeName);

/// The task itself, which the busy window calls. The definition of each chart is saved after its build.
void PopulateAllCharts();
/// Checks the definition, pivots the table, writes the data block and draws the chart. A chart that can't be
/// built loses its series and gets a crosshatched area, unless the area has a colour of its own; the next
/// build that succeeds undoes the crosshatching. The definition isn't saved here.
void PopulateChart(const std::string& sID);

}  // namespace plotsmith

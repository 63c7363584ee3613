#pragma once

#include <cstdint>
#include <string>

/// Module PSChartBuilder: rebuilds one chart, all charts, or those that hang on one table.
namespace plotsmith {

/// The works that the busy window can carry (`lMethodType` of the window).
namespace busy {
inline constexpr std::int32_t kAllCharts = 0;  ///< PopulateAllCharts
inline constexpr std::int32_t kOneChart = 1;   ///< PopulateChart
inline constexpr std::int32_t kRun = 2;        ///< a whole run
}  // namespace busy

/// Shows the busy window, which does the work inside; returns when that is over. The first argument is one of
/// `busy`, the second the id of the one chart. The window stands above this module, so the controller hands
/// the procedure in.
extern void (*ShowBusyWindow)(std::int32_t lMethodType, const std::string& sChartID);

/// All charts behind the busy window, or without it on a host up to version 11.
void RefreshAllCharts();
/// One chart, likewise.
void RefreshChart(const std::string& sID);
/// The charts that have the table as source or as bucket table. It has just changed, so the tables are
/// discovered anew. Every definition is saved.
void PopulateModifiedCharts(const std::string& sTableRangeName);

/// The work itself, which the busy window calls. Each chart is saved after its build.
void PopulateAllCharts();
/// Validates, pivots, writes the data block and draws. A chart that can't be built loses its series and, if
/// its area has no colour of its own, stands crosshatched; the next build that succeeds takes that back. The
/// definition isn't saved here.
void PopulateChart(const std::string& sID);

}  // namespace plotsmith

#pragma once

#include <string>

/// Module PSChartBuilder: rebuilds one chart, all charts, or those that hang on one table.
namespace plotsmith {

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

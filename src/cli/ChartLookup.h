#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace plotsmith::cli {

/// The id and the name of each chart.
using ChartNames = std::vector<std::pair<std::string, std::string>>;

/// Those of the charts that are loaded, in their order; `colCharts` must be set.
ChartNames LoadedCharts();

/// The place of the chart that bears the id or, ignoring case, the name. An id goes before a name, as a name
/// may be another chart's id. Absent if there is no such chart.
std::optional<std::size_t> FindChart(const ChartNames& charts, const std::string& idOrName);

}  // namespace plotsmith::cli

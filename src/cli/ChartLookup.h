#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace plotsmith::cli {

/// The id and the name of each chart.
using ChartNames = std::vector<std::pair<std::string, std::string>>;

/// Those of the charts that are loaded, in their order; `colCharts` must be set.
ChartNames LoadedCharts();

/// The places of the charts that bear the id or, ignoring case, the name. An id goes before a name, as a name
/// may be another chart's id. Several charts may have one name, since a modified chart can take any.
std::vector<std::size_t> FindCharts(const ChartNames& charts, const std::string& idOrName);
/// Says that several charts bear a name; the sentence has no full stop.
std::string SeveralCharts(const ChartNames& charts, const std::vector<std::size_t>& places,
                          const std::string& name);

}  // namespace plotsmith::cli

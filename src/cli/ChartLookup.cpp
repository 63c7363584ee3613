#include "cli/ChartLookup.h"

#include <algorithm>

#include "common/CommonFunctions.h"
#include "common/RunVariables.h"
#include "runtime/Strings.h"

namespace plotsmith::cli {

ChartNames LoadedCharts() {
  ChartNames charts;
  for (const dom::IXMLDOMDocument2& document : *colCharts) {
    const auto chart = document.selectSingleNode("chart");
    charts.emplace_back(GetAttributeText(chart, "id"), GetAttributeText(chart, "name"));
  }
  return charts;
}

std::optional<std::size_t> FindChart(const ChartNames& charts, const std::string& idOrName) {
  auto found =
      std::find_if(charts.begin(), charts.end(), [&](const auto& chart) { return chart.first == idOrName; });
  if (found == charts.end()) {
    found = std::find_if(charts.begin(), charts.end(), [&](const auto& chart) {
      return runtime::EqualsIgnoreCase(chart.second, idOrName);
    });
  }
  if (found == charts.end()) return std::nullopt;
  return static_cast<std::size_t>(found - charts.begin());
}

}  // namespace plotsmith::cli

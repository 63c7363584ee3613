#include "cli/ChartLookup.h"

#include "cli/check/Words.h"
#include "common/Documents.h"
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

std::vector<std::size_t> FindCharts(const ChartNames& charts, const std::string& idOrName) {
  std::vector<std::size_t> named;
  for (std::size_t i = 0; i < charts.size(); ++i) {
    if (charts[i].first == idOrName) return {i};
    if (runtime::EqualsIgnoreCase(charts[i].second, idOrName)) named.push_back(i);
  }
  return named;
}

std::string SeveralCharts(const ChartNames& charts, const std::vector<std::size_t>& places,
                          const std::string& name) {
  std::vector<std::string> ids;
  for (const std::size_t place : places) ids.push_back(charts[place].first);
  return "several charts have the name " + Quoted(name) + ": " + Listed(ids) + "; use the id of one of them";
}

}  // namespace plotsmith::cli

#include "cli/ChartLookup.h"

#include <cstdint>
#include <optional>
#include <set>
#include <utility>

#include "cli/check/ChartMarkers.h"
#include "cli/check/Words.h"
#include "common/Cells.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "common/Worksheets.h"
#include "metadata/LostMarkers.h"
#include "metadata/MetadataStore.h"
#include "runtime/Strings.h"

namespace plotsmith::cli {
namespace {

/// Finds the charts of definitions, each chart once.
class ChartFinder {
 public:
  explicit ChartFinder(xlsx::Workbook& book) : markers_(book) {}

  /// Returns the chart of a definition, or nothing if the text is no definition, or has no chart.
  std::optional<DefinedChart> Find(const std::string& text) {
    auto document = NewXMLDocument();
    if (!document.loadXML(text)) return std::nullopt;
    const auto definition = document.selectSingleNode("chart");
    const std::string id = GetAttributeText(definition, "id");
    if (id.empty()) return std::nullopt;
    const std::string sheet = markers_.ShapeOf(id) ? markers_.SheetOf(id) : unmarked_.RestoreMarker(id);
    if (sheet.empty() || !ids_.insert(runtime::UCase(id)).second) return std::nullopt;
    return DefinedChart{id, GetAttributeText(definition, "name"), FindChartObject(id, sheet)};
  }

 private:
  ChartMarkers markers_;
  UnmarkedCharts unmarked_;
  std::set<std::string> ids_;  ///< In capitals.
};

}  // namespace

ChartNames LoadedCharts() {
  ChartNames charts;
  for (const dom::IXMLDOMDocument2& document : *colCharts) {
    const auto chart = document.selectSingleNode("chart");
    charts.push_back({GetAttributeText(chart, "id"), GetAttributeText(chart, "name")});
  }
  return charts;
}

std::vector<DefinedChart> DefinedCharts(xlsx::Workbook& book) {
  std::vector<DefinedChart> defined;
  if (!SheetExists(kDefinitionsSheet)) return defined;
  const auto sheet = oWorkbook->Worksheets()->Item(kDefinitionsSheet);
  ChartFinder finder(book);
  for (std::int32_t row = kFirstDefinitionRow;; ++row) {
    const std::string text = runtime::CStr(GetCellValue(*sheet, row, 1, cell::kString));
    if (text.empty()) return defined;
    // An error in a row concerns only that row.
    auto found = ValueOr(std::optional<DefinedChart>(), [&] { return finder.Find(text); });
    if (found) defined.push_back(std::move(*found));
  }
}

std::vector<std::size_t> FindCharts(const ChartNames& charts, const std::string& idOrName) {
  std::vector<std::size_t> named;
  for (std::size_t i = 0; i < charts.size(); ++i) {
    if (charts[i].id == idOrName) return {i};
    if (runtime::EqualsIgnoreCase(charts[i].name, idOrName)) named.push_back(i);
  }
  return named;
}

std::string SeveralCharts(const ChartNames& charts, const std::vector<std::size_t>& places,
                          const std::string& name) {
  std::vector<std::string> ids;
  for (const std::size_t place : places) ids.push_back(charts[place].id);
  return "several charts have the name " + Quoted(name) + ": " + Listed(ids) + "; use the id of one of them";
}

}  // namespace plotsmith::cli

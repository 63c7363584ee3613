#include "xlsx/chart/rules/LegendLines.h"

#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "runtime/Strings.h"
#include "xlsx/base/Limits.h"
#include "xlsx/chart/part/ChartCache.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/PlotGroups.h"
#include "xlsx/chart/rules/SeriesData.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

namespace {

pugi::xml_node FindLegend(ChartPart& part) { return xml::Child(part.Chart(), "legend"); }

/// Returns true if the legend lists points: always for a pie, and for a single series in varied colours.
bool ListsPoints(ChartPart& part) {
  const auto groups = DrawnGroups(part);
  if (groups.empty()) return false;
  const std::string_view kind = xml::LocalName(groups[0]);
  if (kind.starts_with("pie") || kind == "doughnutChart" || kind == "ofPieChart") return true;
  return part.Series().size() == 1 && schema::BooleanVal(groups[0], "varyColors", false);
}

/// The texts of categories, a map for each level, the innermost first.
using Levels = std::vector<std::map<std::size_t, std::string>>;

/// Returns a text as a cell could contain it.
std::string Shortened(const std::string& text) {
  return std::string(runtime::Left(text, limits::kCellText));  // A copy takes no more memory than its text.
}

Levels CategoryLevels(ChartPart& part, pugi::xml_node categories) {
  Levels levels = CachedLevels(categories);
  std::erase_if(levels, [](const auto& level) { return level.empty(); });
  if (levels.empty()) levels.push_back(DataTexts(part, categories));
  for (auto& level : levels) {
    for (auto& [point, text] : level) text = Shortened(text);
  }
  return levels;
}

/// Returns the text of a point, which is its number if its category has no text. The texts of several levels
/// are joined, the outermost first.
std::string PointText(const Levels& levels, std::size_t point) {
  const auto own = levels.front().find(point);
  if (own == levels.front().end()) return std::to_string(point + 1);
  std::string text;
  for (std::size_t i = levels.size() - 1; i > 0; --i) {
    const auto next = levels[i].upper_bound(point);
    if (next != levels[i].begin()) text += std::prev(next)->second + " ";
  }
  return Shortened(text + own->second);
}

std::size_t AllEntries(ChartPart& part) {
  if (part.Series().empty()) return 0;
  return ListsPoints(part) ? DataPoints(part, FindValues(part.Series()[0]->node)) : part.Series().size();
}

}  // namespace

std::vector<std::size_t> LegendNumbers(ChartPart& part, std::size_t most) {
  std::set<long long> deleted;
  for (const pugi::xml_node& entry : xml::Children(FindLegend(part), "legendEntry")) {
    if (schema::BooleanVal(entry, "delete", false)) deleted.insert(schema::NumberOf(entry));
  }
  std::vector<std::size_t> left;
  const std::size_t all = AllEntries(part);
  for (std::size_t i = 0; i < all && left.size() < most; ++i) {
    if (!deleted.contains(static_cast<long long>(i))) left.push_back(i);
  }
  return left;
}

std::vector<LegendLine> LegendLines(ChartPart& part) {
  const bool points = ListsPoints(part);
  const Levels categories =
      points ? CategoryLevels(part, xml::Child(part.Series()[0]->node, "cat")) : Levels();
  std::vector<LegendLine> lines;
  for (const std::size_t number : LegendNumbers(part, kMostLegendEntries)) {
    if (!points) {
      lines.push_back({number, number, std::nullopt, ShownName(part, part.Series()[number]->node)});
    } else {
      lines.push_back({number, 0, number, PointText(categories, number)});
    }
  }
  return lines;
}

std::vector<std::string> LegendTexts(ChartPart& part) {
  std::vector<std::string> texts;
  for (LegendLine& line : LegendLines(part)) texts.push_back(std::move(line.text));
  return texts;
}

void DropLegendEntry(ChartPart& part, std::size_t position) {
  pugi::xml_node legend = FindLegend(part);
  const bool last = part.Series().size() == 1;
  const bool points = ListsPoints(part);
  for (pugi::xml_node& entry : xml::Children(legend, "legendEntry")) {
    const long long number = schema::NumberOf(entry), gone = static_cast<long long>(position);
    if (last || (number == gone && !points)) {
      legend.remove_child(entry);
    } else if (number > gone && !points) {
      schema::SetVal(entry, "idx", std::to_string(number - 1));
    }
  }
}

void ClearStaleLegendEntries(ChartPart& part, std::size_t position) {
  pugi::xml_node legend = FindLegend(part);
  if (!part.Series().empty() && ListsPoints(part)) return;
  for (pugi::xml_node& entry : xml::Children(legend, "legendEntry")) {
    if (schema::NumberOf(entry) >= static_cast<long long>(position)) legend.remove_child(entry);
  }
}

}  // namespace plotsmith::xlsx

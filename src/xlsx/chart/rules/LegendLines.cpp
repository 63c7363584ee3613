#include "xlsx/chart/rules/LegendLines.h"

#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

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

/// Returns the texts of the categories. Several levels are joined into one text, the outermost first.
std::map<std::size_t, std::string> CategoryTexts(ChartPart& part, pugi::xml_node categories) {
  const auto cache = xml::Child(categories, "multiLvlStrRef", "multiLvlStrCache");
  if (!cache) return DataTexts(part, categories);
  std::map<std::size_t, std::string> texts;
  for (const pugi::xml_node& level : xml::Children(cache, "lvl")) {
    std::map<std::size_t, std::string> own;
    for (const pugi::xml_node& point : xml::Children(level, "pt")) {
      const long long index = xml::IntegerAttribute(point, "idx", -1);
      if (index >= 0) own[static_cast<std::size_t>(index)] = CachedText(point);
    }
    if (texts.empty()) {
      texts = std::move(own);
      continue;
    }
    // A text of an outer level applies until the next text of that level.
    for (auto& [index, text] : texts) {
      const auto next = own.upper_bound(index);
      if (next != own.begin()) text.insert(0, std::prev(next)->second + " ");
    }
  }
  return texts;
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

std::vector<LegendLine> LegendLines(ChartPart& part, std::size_t most) {
  const bool points = ListsPoints(part);
  const auto categories = points ? CategoryTexts(part, xml::Child(part.Series()[0]->node, "cat"))
                                 : std::map<std::size_t, std::string>();
  std::vector<LegendLine> lines;
  for (const std::size_t number : LegendNumbers(part, most)) {
    if (!points) {
      lines.push_back({number, number, std::nullopt, ShownName(part, part.Series()[number]->node)});
    } else {
      const auto text = categories.find(number);
      lines.push_back(
          {number, 0, number, text == categories.end() ? std::to_string(number + 1) : text->second});
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

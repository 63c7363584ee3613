#include "xlsx/chart/LegendEntries.h"

#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "host/excel/LegendEntry.h"
#include "xlsx/Errors.h"
#include "xlsx/Workbook.h"
#include "xlsx/chart/ChartCache.h"
#include "xlsx/chart/ChartPart.h"
#include "xlsx/chart/PlotGroups.h"
#include "xlsx/chart/SeriesData.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using excel::Ref;

namespace {

pugi::xml_node FindLegend(ChartPart& part) { return xml::Child(part.Chart(), "legend"); }

/// Whether the legend tells points apart: of a pie always, else of a single series in varied colours.
bool ListsPoints(ChartPart& part) {
  const auto groups = DrawnGroups(part);
  if (groups.empty()) return false;
  const std::string_view kind = xml::LocalName(groups[0]);
  if (kind.starts_with("pie") || kind == "doughnutChart" || kind == "ofPieChart") return true;
  return part.Series().size() == 1 && schema::BooleanVal(groups[0], "varyColors", false);
}

std::size_t AllEntries(ChartPart& part) {
  if (part.Series().empty()) return 0;
  return ListsPoints(part) ? DataPoints(part, FindValues(part.Series()[0]->node)) : part.Series().size();
}

/// The numbers of the first entries that are left.
std::vector<std::size_t> EntriesLeft(ChartPart& part, std::size_t most = SIZE_MAX) {
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

class LegendEntryObject final : public excel::LegendEntry {
 public:
  LegendEntryObject(std::shared_ptr<ChartPart> part, std::size_t number, std::int32_t place)
      : part_(std::move(part)), number_(number), place_(place) {}

  void Delete() override {
    part_->Book().Journal().Call(
        [this] { return "Chart.Legend.LegendEntries(" + std::to_string(place_) + ")"; }, "Delete");
    const auto legend = FindLegend(*part_);
    if (!legend) throw Refusal("Delete method of LegendEntry class failed");
    const pugi::xml_node entry =
        schema::EnsureNumbered(legend, "legendEntry", static_cast<long long>(number_));
    schema::Remove(entry, "txPr");
    schema::SetVal(entry, "delete", "1");
    part_->MarkChanged();
  }

 private:
  std::shared_ptr<ChartPart> part_;
  std::size_t number_;
  std::int32_t place_;
};

class LegendEntriesObject final : public excel::LegendEntries {
 public:
  explicit LegendEntriesObject(std::shared_ptr<ChartPart> part) : part_(std::move(part)) {}

  std::int32_t Count() override { return static_cast<std::int32_t>(EntriesLeft(*part_).size()); }
  Ref<excel::LegendEntry> Item(std::int32_t index) override {
    const auto left = EntriesLeft(*part_);
    if (index < 1 || index > static_cast<std::int32_t>(left.size())) {
      throw MethodFailed("Item", "LegendEntries");
    }
    return std::make_shared<LegendEntryObject>(part_, left[static_cast<std::size_t>(index) - 1], index);
  }

 private:
  std::shared_ptr<ChartPart> part_;
};

/// The texts of the categories; of several levels they are one text, the outermost first.
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
    // a text of an outer level holds until the next one
    for (auto& [index, text] : texts) {
      const auto next = own.upper_bound(index);
      if (next != own.begin()) text.insert(0, std::prev(next)->second + " ");
    }
  }
  return texts;
}

}  // namespace

Ref<excel::LegendEntries> MakeLegendEntries(std::shared_ptr<ChartPart> part) {
  return std::make_shared<LegendEntriesObject>(std::move(part));
}

std::vector<LegendLine> LegendLines(ChartPart& part, std::size_t most) {
  const bool points = ListsPoints(part);
  const auto categories = points ? CategoryTexts(part, xml::Child(part.Series()[0]->node, "cat"))
                                 : std::map<std::size_t, std::string>();
  std::vector<LegendLine> lines;
  for (const std::size_t number : EntriesLeft(part, most)) {
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

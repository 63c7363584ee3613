#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "render/model/ChartReader.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/LegendLines.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {

namespace schema = xlsx::schema;
namespace xml = xlsx::xml;

namespace {

pugi::xml_node LegendOf(const ReadingContext& context) {
  return xml::Child(context.part.Space(), "chart", "legend");
}

/// The settings of single entries (c:legendEntry). Entries are numbered from 0.
class EntrySettings {
 public:
  explicit EntrySettings(ReadingContext& context) : context_(context) {
    for (const pugi::xml_node& node : xml::Children(LegendOf(context), "legendEntry")) {
      nodes_.emplace(schema::IntegerVal(node, "idx", -1), node);  // the first of a number counts
    }
  }

  bool IsDeleted(std::size_t number) const { return schema::BooleanVal(Find(number), "delete", false); }

  /// Returns the style of an entry, which is that of the legend if the entry has none.
  TextStyle StyleOf(std::size_t number, const TextStyle& legend) const {
    const auto node = Find(number);
    return xml::Child(node, "txPr") ? ReadTextStyle(context_.part, node, xlsx::TextRole::kOther) : legend;
  }

 private:
  pugi::xml_node Find(std::size_t number) const {
    const auto found = nodes_.find(static_cast<long long>(number));
    return found == nodes_.end() ? pugi::xml_node() : found->second;
  }

  ReadingContext& context_;
  std::map<long long, pugi::xml_node> nodes_;
};

}  // namespace

std::optional<LegendModel> ReadLegend(ReadingContext& context) {
  const auto node = LegendOf(context);
  if (!node) return std::nullopt;
  LegendModel legend;
  legend.position = schema::Val(node, "legendPos", "r");
  legend.overlay = schema::BooleanVal(node, "overlay", false);
  legend.layout = ReadLayout(node);
  legend.style = ReadStyle(context.part, xml::Child(node, "spPr"), {});
  legend.text = ReadTextStyle(context.part, node, xlsx::TextRole::kOther);
  const EntrySettings settings(context);
  for (const xlsx::LegendLine& line : xlsx::LegendLines(context.part)) {
    legend.entries.push_back({line.text, settings.StyleOf(line.number, legend.text),
                              static_cast<int>(line.series + 1),
                              line.point ? static_cast<int>(*line.point + 1) : 0});
  }
  return legend;
}

void AddTrendlineEntries(ReadingContext& context, ChartModel& chart) {
  if (!chart.legend) return;
  LegendModel& legend = *chart.legend;
  // The numbers of the entries of trendlines follow those of all series, or of all points.
  std::size_t number = context.part.Series().size();
  const bool hasPoints = std::any_of(legend.entries.begin(), legend.entries.end(),
                                     [](const LegendEntry& entry) { return entry.point > 0; });
  if (hasPoints && !chart.groups.empty()) number = chart.groups.front().PointCount();
  const EntrySettings settings(context);
  for (const GroupModel& group : chart.groups) {
    for (const SeriesModel& series : group.series) {
      int count = 0;
      for (const Trendline& line : series.trendlines) {
        if (legend.entries.size() >= xlsx::kMostLegendEntries) return;
        ++count;
        const std::size_t own = number++;
        if (!line.isVisible || settings.IsDeleted(own)) continue;
        legend.entries.push_back({line.name, settings.StyleOf(own, legend.text), series.number, 0, count});
      }
    }
  }
}

void AddBandEntries(ReadingContext& context, ChartModel& chart) {
  const auto group = std::find_if(chart.groups.begin(), chart.groups.end(),
                                  [](const GroupModel& one) { return !one.bands.empty(); });
  if (!chart.legend || group == chart.groups.end()) return;
  LegendModel& legend = *chart.legend;
  legend.entries.clear();
  const AxisModel& axis = chart.axes[static_cast<std::size_t>(group->value)];
  const auto text = [&](double value) {
    std::string number;
    axis.format->AppendNumber(number, value / axis.units.factor, chart.dates);
    return number;
  };
  const EntrySettings settings(context);
  for (std::size_t i = 0; i < group->bands.size(); ++i) {
    if (settings.IsDeleted(i)) continue;
    const SurfaceBand& band = group->bands[i];
    LegendEntry entry{text(band.from) + "-" + text(band.to), settings.StyleOf(i, legend.text)};
    entry.band = static_cast<int>(i + 1);
    legend.entries.push_back(std::move(entry));
  }
}

}  // namespace plotsmith::render

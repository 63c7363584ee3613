#include "xlsx/chart/rules/ChartTypeRules.h"

#include <algorithm>
#include <array>
#include <string>

#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/drawing/DrawingFill.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

constexpr const char* kExplosion = "25";        // percent; Excel's default for exploded slices
constexpr const char* kScatterWidth = "28575";  // EMU; of hidden lines in scatter charts

bool Lists(std::string_view list, std::string_view word) {
  for (std::size_t at = 0; at <= list.size();) {
    const std::size_t end = std::min(list.find(' ', at), list.size());
    if (list.substr(at, end - at) == word) return true;
    at = end + 1;
  }
  return false;
}

/// Elements that only the series of some groups have.
struct Extra {
  std::string_view name, groups;
};
constexpr std::array<Extra, 10> kExtras = {{
    {"invertIfNegative", "barChart bar3DChart bubbleChart"},
    {"pictureOptions", "areaChart area3DChart barChart bar3DChart"},
    {"marker", "lineChart scatterChart"},
    {"explosion", "pieChart pie3DChart"},
    {"trendline", "areaChart area3DChart barChart bar3DChart lineChart scatterChart bubbleChart"},
    {"errBars", "areaChart area3DChart barChart bar3DChart lineChart scatterChart bubbleChart"},
    {"smooth", "lineChart scatterChart"},
    {"bubbleSize", "bubbleChart"},
    {"bubble3D", "bubbleChart"},
    {"shape", "bar3DChart"},
}};

/// The label positions that groups allow (MS-OI29500, 2.1.1456). Other groups allow none.
struct Positions {
  std::string_view groups, positions;
};
constexpr std::array<Positions, 3> kPositions = {{
    {"pieChart pie3DChart ofPieChart", "bestFit ctr inEnd outEnd"},
    {"barChart", "ctr inBase inEnd outEnd"},
    {"bubbleChart lineChart scatterChart stockChart", "ctr l r t b"},
}};

/// Elements that several groups share, and the groups that can have them.
constexpr std::array<Extra, 5> kCommon = {{
    {"varyColors", "areaChart area3DChart barChart bar3DChart lineChart scatterChart bubbleChart"},
    {"dLbls",
     "areaChart area3DChart barChart bar3DChart lineChart scatterChart bubbleChart pieChart pie3DChart"},
    {"gapWidth", "barChart bar3DChart"},
    {"gapDepth", "area3DChart bar3DChart"},
    {"dropLines", "areaChart area3DChart lineChart"},
}};

std::string StateOfSeries(pugi::xml_node series) { return "series-" + schema::Val(series, "idx"); }

void KeepAllowedPositions(pugi::xml_node labels, pugi::xml_node group) {
  for (const pugi::xml_node& label : xml::Children(labels, "dLbl")) KeepAllowedPositions(label, group);
  const std::string position = schema::Val(labels, "dLblPos");
  if (!position.empty() && !AllowsLabelPosition(group, position)) schema::Remove(labels, "dLblPos");
}

void Rename(pugi::xml_node series, const char* from, const char* to) {
  if (pugi::xml_node data = xml::Child(series, from)) {
    data.set_name((std::string(xml::Prefix(data.name())) + to).c_str());
  }
}

void SetTrait(pugi::xml_node series, SeriesTrait trait) {
  switch (trait) {
    case SeriesTrait::kNone:
      schema::Remove(series, "explosion");
      break;
    case SeriesTrait::kNoMarkers:
      schema::SetVal(schema::Ensure(series, "marker"), "symbol", "none");
      break;
    case SeriesTrait::kMarkersOnly:
      if (const auto properties = schema::Ensure(series, "spPr"); !xml::Child(properties, "ln")) {
        const pugi::xml_node line = schema::Ensure(properties, "ln");
        xml::SetAttribute(line, "w", kScatterWidth);
        SetFill(line, "noFill");
      }
      [[fallthrough]];
    case SeriesTrait::kMarkers:
      if (schema::Val(xml::Child(series, "marker"), "symbol") == "none") schema::Remove(series, "marker");
      break;
    case SeriesTrait::kExploded:
      if (schema::IntegerVal(series, "explosion", 0) <= 0) {
        schema::SetVal(series, "explosion", kExplosion);
      }
      break;
    case SeriesTrait::kFlatBubble:
    case SeriesTrait::kBubble3D:
      schema::SetBooleanVal(series, "bubble3D", trait == SeriesTrait::kBubble3D);
      break;
  }
}

}  // namespace

bool AllowsLabelPosition(pugi::xml_node group, std::string_view position) {
  const std::string grouping = schema::Val(group, "grouping");
  if (position == "outEnd" && (grouping == "stacked" || grouping == "percentStacked")) return false;
  return std::any_of(kPositions.begin(), kPositions.end(), [&](const Positions& entry) {
    return Lists(entry.groups, xml::LocalName(group)) && Lists(entry.positions, position);
  });
}

void RemoveMisfits(ChartPart& part, pugi::xml_node series) {
  for (const Extra& extra : kExtras) {
    if (Lists(extra.groups, xml::LocalName(series.parent()))) continue;
    const auto node = xml::Child(series, extra.name);
    if (node && extra.name == "bubbleSize") part.SetAside(StateOfSeries(series)).append_copy(node);
    schema::Remove(series, extra.name);
  }
}

void FitToGroup(ChartPart& part, pugi::xml_node series, const ChartTypeEntry& type) {
  // Only the series of lines have this element. Excel and this host always write it.
  const bool wasLine = static_cast<bool>(xml::Child(series, "smooth"));
  RemoveMisfits(part, series);
  if (type.HasXValues()) {
    Rename(series, "cat", "xVal");
    Rename(series, "val", "yVal");
  } else {
    Rename(series, "xVal", "cat");
    Rename(series, "yVal", "val");
  }
  // Programs have different defaults for these two elements.
  if ((type.IsBar() || type.IsBubble()) && !xml::Child(series, "invertIfNegative")) {
    schema::SetVal(series, "invertIfNegative", "0");
  }
  const bool isLine = type.IsLine() || type.element == "scatterChart";
  if (isLine && !wasLine) schema::SetVal(series, "smooth", "0");
  if (wasLine && !isLine) {
    // A hidden line would become a hidden outline in the new group.
    pugi::xml_node properties = xml::Child(series, "spPr");
    if (xml::Is(FindFill(xml::Child(properties, "ln")), "noFill")) schema::Remove(properties, "ln");
  }
  if (type.IsBubble() && !xml::Child(series, "bubbleSize")) {
    const auto setAside = xml::Child(part.FindSetAside(StateOfSeries(series)), "bubbleSize");
    if (setAside) schema::InsertCopy(series, setAside);
  }
  for (const pugi::xml_node& labels : xml::Children(series, "dLbls")) {
    KeepAllowedPositions(labels, series.parent());
  }
}

void FitSeries(ChartPart& part, pugi::xml_node series, const ChartTypeEntry& type) {
  FitToGroup(part, series, type);
  SetTrait(series, type.trait);
}

void ForgetSeries(ChartPart& part, pugi::xml_node series) { part.DiscardSetAside(StateOfSeries(series)); }

pugi::xml_node DeriveGroup(pugi::xml_node plotArea, pugi::xml_node old, const ChartTypeEntry& type) {
  pugi::xml_node group = schema::Insert(plotArea, type.element);
  for (const Extra& common : kCommon) {
    const auto node = xml::Child(old, common.name);
    const bool fits = Lists(common.groups, type.element) && Lists(common.groups, xml::LocalName(old));
    if (node && fits) schema::InsertCopy(group, node);
  }
  return group;
}

void FitGroup(pugi::xml_node group, const ChartTypeEntry& type, bool restored) {
  if (!type.direction.empty()) schema::SetVal(group, "barDir", type.direction);
  if (!type.grouping.empty()) schema::SetVal(group, "grouping", type.grouping);
  if (restored) return;
  const auto preset = [&](const char* name, std::string_view value) {
    if (!xml::Child(group, name)) schema::SetVal(group, name, value);
  };
  preset("varyColors", type.IsPie() ? "1" : "0");
  if (type.IsBar()) preset("gapWidth", "150");
  if (type.element == "bar3DChart") preset("shape", "box");
  if (type.element == "pieChart") preset("firstSliceAng", "0");
  if (type.element == "scatterChart") preset("scatterStyle", "lineMarker");
  if (type.IsLine()) preset("marker", "1");
  if (type.IsBubble()) {
    preset("bubbleScale", "100");
    preset("showNegBubbles", "0");
  }
  if (type.element == "barChart") {
    if (type.IsStacked()) {
      schema::SetVal(group, "overlap", "100");
    } else {
      schema::Remove(group, "overlap");
    }
  }
  for (const pugi::xml_node& labels : xml::Children(group, "dLbls")) KeepAllowedPositions(labels, group);
}

}  // namespace plotsmith::xlsx

#include "xlsx/chart/ChartTypes.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>
#include <string_view>

#include "host/excel/Constants.h"
#include "xlsx/chart/ChartPart.h"
#include "xlsx/chart/PlotGroups.h"
#include "xlsx/drawing/DrawingFill.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

/// The types of three groupings, one row of the object model's list.
struct Stacking {
  std::int32_t single, stacked, percent;

  std::int32_t Of(std::string_view grouping) const {
    if (grouping == "stacked") return stacked;
    return grouping == "percentStacked" ? percent : single;
  }
};

/// 3-D columns and bars by their shape (ST_Shape). Columns that stand behind each other are a type of their
/// own; bars can't.
struct Solid {
  std::string_view shape;
  Stacking columns, bars;
  std::int32_t behind;
};
constexpr std::array<Solid, 4> kSolids = {{
    {"box", {54, 55, 56}, {60, 61, 62}, -4100},
    {"cylinder", {92, 93, 94}, {95, 96, 97}, 98},
    {"cone", {99, 100, 101}, {102, 103, 104}, 105},
    {"pyramid", {106, 107, 108}, {109, 110, 111}, 112},
}};

std::int32_t BarType(pugi::xml_node group, pugi::xml_node series, bool solid) {
  const std::string grouping = schema::Val(group, "grouping", "clustered");
  const bool bars = schema::Val(group, "barDir", "col") == "bar";
  if (!solid) return (bars ? Stacking{57, 58, 59} : Stacking{51, 52, 53}).Of(grouping);
  std::string shape = schema::Val(series, "shape", schema::Val(group, "shape", "box"));
  // "to max" cuts all at one height: the object model has no types for it
  if (const auto cut = shape.find("ToMax"); cut != std::string::npos) shape.erase(cut);
  const auto found =
      std::find_if(kSolids.begin(), kSolids.end(), [&](const Solid& entry) { return entry.shape == shape; });
  const Solid& entry = found == kSolids.end() ? kSolids[0] : *found;
  if (!bars && grouping == "standard") return entry.behind;
  return (bars ? entry.bars : entry.columns).Of(grouping);
}

/// Whether a marker is drawn; `fallback` where the series doesn't say.
bool HasMarkers(pugi::xml_node series, bool fallback) {
  const std::string symbol = schema::Val(xml::Child(series, "marker"), "symbol");
  return symbol.empty() ? fallback : symbol != "none";
}

bool HasLine(pugi::xml_node series) { return !xml::Is(FindFill(xml::Child(series, "spPr", "ln")), "noFill"); }

std::int32_t LineType(pugi::xml_node group, pugi::xml_node series) {
  const bool markers = HasMarkers(series, schema::BooleanVal(group, "marker", false));
  if (markers && !HasLine(series)) return excel::xlCombination;
  return (markers ? Stacking{65, 66, 67} : Stacking{4, 63, 64}).Of(schema::Val(group, "grouping"));
}

std::int32_t ScatterType(pugi::xml_node group, pugi::xml_node series) {
  const std::string style = schema::Val(group, "scatterStyle", "marker");
  if (!HasLine(series) || style == "marker" || style == "none") return -4169;
  const bool markers = HasMarkers(series, style != "line" && style != "smooth");
  if (schema::BooleanVal(series, "smooth", style.starts_with("smooth"))) return markers ? 72 : 73;
  return markers ? 74 : 75;
}

/// A pie is exploded when a slice of it is.
bool IsExploded(pugi::xml_node series) {
  const auto moved = [](pugi::xml_node node) { return schema::IntegerVal(node, "explosion", 0) > 0; };
  if (xml::Child(series, "explosion")) return moved(series);
  const auto points = xml::Children(series, "dPt");
  return !points.empty() && std::all_of(points.begin(), points.end(), moved);
}

std::int32_t StockType(pugi::xml_node group) {
  const bool open = xml::Children(group, "ser").size() >= 4;
  const bool volume = static_cast<bool>(xml::Child(group.parent(), "barChart"));
  if (volume) return open ? 91 : 90;
  return open ? 89 : 88;
}

std::int32_t TypeIn(pugi::xml_node group, pugi::xml_node series) {
  const std::string_view kind = xml::LocalName(group);
  const std::string grouping = schema::Val(group, "grouping");
  if (kind == "barChart") return BarType(group, series, false);
  if (kind == "bar3DChart") return BarType(group, series, true);
  if (kind == "areaChart") return Stacking{1, 76, 77}.Of(grouping);
  if (kind == "area3DChart") return Stacking{-4098, 78, 79}.Of(grouping);
  if (kind == "lineChart") return LineType(group, series);
  if (kind == "line3DChart") return -4101;
  if (kind == "pieChart") return IsExploded(series) ? 69 : 5;
  if (kind == "pie3DChart") return IsExploded(series) ? 70 : -4102;
  if (kind == "ofPieChart") return schema::Val(group, "ofPieType", "pie") == "bar" ? 71 : 68;
  if (kind == "doughnutChart") return IsExploded(series) ? 80 : -4120;
  if (kind == "scatterChart") return ScatterType(group, series);
  if (kind == "bubbleChart") {
    return schema::BooleanVal(series, "bubble3D", schema::BooleanVal(group, "bubble3D", false)) ? 87 : 15;
  }
  if (kind == "radarChart") {
    if (schema::Val(group, "radarStyle") == "filled") return 82;
    return HasMarkers(series, schema::Val(group, "radarStyle") == "marker") ? 81 : -4151;
  }
  if (kind == "surface3DChart") return schema::BooleanVal(group, "wireframe", false) ? 84 : 83;
  if (kind == "surfaceChart") return schema::BooleanVal(group, "wireframe", false) ? 86 : 85;
  if (kind == "stockChart") return StockType(group);
  return excel::xlCombination;
}

}  // namespace

const ChartTypeEntry* TypeOfGroup(pugi::xml_node group) {
  const auto type = std::find_if(kChartTypes.begin(), kChartTypes.end(), [&](const ChartTypeEntry& entry) {
    return xml::Is(group, entry.element) && schema::Val(group, "barDir", entry.direction) == entry.direction;
  });
  return type == kChartTypes.end() ? nullptr : &*type;
}

std::int32_t TypeOfSeries(pugi::xml_node series) { return TypeIn(series.parent(), series); }

std::int32_t TypeOfChart(ChartPart& part) {
  std::optional<std::int32_t> common;
  for (const pugi::xml_node& series : SeriesOf(part)) {
    const std::int32_t type = TypeOfSeries(series);
    if (common.value_or(type) != type) return excel::xlCombination;
    common = type;
  }
  if (common) return *common;
  for (const pugi::xml_node& child : part.PlotArea().children()) {
    if (schema::IsGroup(child)) return TypeIn(child, {});
  }
  return excel::xlColumnClustered;
}

}  // namespace plotsmith::xlsx

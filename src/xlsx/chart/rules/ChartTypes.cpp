#include "xlsx/chart/rules/ChartTypes.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "host/excel/Constants.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/PlotGroups.h"
#include "xlsx/drawing/DrawingFill.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

// The members of XlChartType that the port has no name for.
constexpr std::int32_t xlLineStacked = 63, xlLineStacked100 = 64;
constexpr std::int32_t xlLineMarkersStacked = 66, xlLineMarkersStacked100 = 67, xl3DLine = -4101;
constexpr std::int32_t xlPieOfPie = 68, xlBarOfPie = 71, xlDoughnut = -4120, xlDoughnutExploded = 80;
constexpr std::int32_t xlXYScatterSmooth = 72, xlXYScatterSmoothNoMarkers = 73;
constexpr std::int32_t xlXYScatterLines = 74, xlXYScatterLinesNoMarkers = 75;
constexpr std::int32_t xlRadar = -4151, xlRadarMarkers = 81, xlRadarFilled = 82;
constexpr std::int32_t xlSurface = 83, xlSurfaceWireframe = 84;
constexpr std::int32_t xlSurfaceTopView = 85, xlSurfaceTopViewWireframe = 86;
constexpr std::int32_t xlStockHLC = 88, xlStockOHLC = 89, xlStockVHLC = 90, xlStockVOHLC = 91;
constexpr std::int32_t xlCylinderColClustered = 92, xlCylinderColStacked = 93, xlCylinderColStacked100 = 94;
constexpr std::int32_t xlCylinderBarClustered = 95, xlCylinderBarStacked = 96, xlCylinderBarStacked100 = 97;
constexpr std::int32_t xlCylinderCol = 98;
constexpr std::int32_t xlConeColClustered = 99, xlConeColStacked = 100, xlConeColStacked100 = 101;
constexpr std::int32_t xlConeBarClustered = 102, xlConeBarStacked = 103, xlConeBarStacked100 = 104;
constexpr std::int32_t xlConeCol = 105;
constexpr std::int32_t xlPyramidColClustered = 106, xlPyramidColStacked = 107, xlPyramidColStacked100 = 108;
constexpr std::int32_t xlPyramidBarClustered = 109, xlPyramidBarStacked = 110, xlPyramidBarStacked100 = 111;
constexpr std::int32_t xlPyramidCol = 112;

constexpr ChartTypeEntry kChartTypeEntries[] = {
    {excel::xlArea, "areaChart", "", "standard"},
    {excel::xlAreaStacked, "areaChart", "", "stacked"},
    {excel::xlAreaStacked100, "areaChart", "", "percentStacked"},
    {excel::xl3DArea, "area3DChart", "", "standard"},
    {excel::xl3DAreaStacked, "area3DChart", "", "stacked"},
    {excel::xl3DAreaStacked100, "area3DChart", "", "percentStacked"},
    {excel::xlColumnClustered, "barChart", "col", "clustered"},
    {excel::xlColumnStacked, "barChart", "col", "stacked"},
    {excel::xlColumnStacked100, "barChart", "col", "percentStacked"},
    {excel::xl3DColumnClustered, "bar3DChart", "col", "clustered"},
    {excel::xl3DColumnStacked, "bar3DChart", "col", "stacked"},
    {excel::xl3DColumnStacked100, "bar3DChart", "col", "percentStacked"},
    {excel::xl3DColumn, "bar3DChart", "col", "standard"},
    {excel::xlBarClustered, "barChart", "bar", "clustered"},
    {excel::xlBarStacked, "barChart", "bar", "stacked"},
    {excel::xlBarStacked100, "barChart", "bar", "percentStacked"},
    {excel::xl3DBarClustered, "bar3DChart", "bar", "clustered"},
    {excel::xl3DBarStacked, "bar3DChart", "bar", "stacked"},
    {excel::xl3DBarStacked100, "bar3DChart", "bar", "percentStacked"},
    {excel::xlLine, "lineChart", "", "standard", SeriesTrait::kNoMarkers},
    {xlLineStacked, "lineChart", "", "stacked", SeriesTrait::kNoMarkers},
    {xlLineStacked100, "lineChart", "", "percentStacked", SeriesTrait::kNoMarkers},
    {excel::xlLineMarkers, "lineChart", "", "standard", SeriesTrait::kMarkers},
    {xlLineMarkersStacked, "lineChart", "", "stacked", SeriesTrait::kMarkers},
    {xlLineMarkersStacked100, "lineChart", "", "percentStacked", SeriesTrait::kMarkers},
    {excel::xlPie, "pieChart", "", ""},
    {excel::xlPieExploded, "pieChart", "", "", SeriesTrait::kExploded},
    {excel::xl3DPie, "pie3DChart", "", ""},
    {excel::xl3DPieExploded, "pie3DChart", "", "", SeriesTrait::kExploded},
    {excel::xlXYScatter, "scatterChart", "", "", SeriesTrait::kMarkersOnly},
    {excel::xlBubble, "bubbleChart", "", "", SeriesTrait::kFlatBubble},
    {excel::xlBubble3DEffect, "bubbleChart", "", "", SeriesTrait::kBubble3D},
};

/// The types for the three groupings: clustered, stacked and 100 % stacked.
struct Stacking {
  std::int32_t single, stacked, percent;

  std::int32_t Of(std::string_view grouping) const {
    if (grouping == "stacked") return stacked;
    return grouping == "percentStacked" ? percent : single;
  }
};

constexpr Stacking kAreas = {excel::xlArea, excel::xlAreaStacked, excel::xlAreaStacked100};
constexpr Stacking kAreas3D = {excel::xl3DArea, excel::xl3DAreaStacked, excel::xl3DAreaStacked100};
constexpr Stacking kColumns = {excel::xlColumnClustered, excel::xlColumnStacked, excel::xlColumnStacked100};
constexpr Stacking kBars = {excel::xlBarClustered, excel::xlBarStacked, excel::xlBarStacked100};
constexpr Stacking kLines = {excel::xlLine, xlLineStacked, xlLineStacked100};
constexpr Stacking kMarkedLines = {excel::xlLineMarkers, xlLineMarkersStacked, xlLineMarkersStacked100};

/// The types of 3-D columns and bars by their shape (ST_Shape). Columns that are drawn behind each other have
/// a type of their own; such bars have none.
struct ColumnShape {
  std::string_view shape;
  Stacking columns, bars;
  std::int32_t behind;
};
constexpr std::array<ColumnShape, 4> kColumnShapes = {{
    {"box",
     {excel::xl3DColumnClustered, excel::xl3DColumnStacked, excel::xl3DColumnStacked100},
     {excel::xl3DBarClustered, excel::xl3DBarStacked, excel::xl3DBarStacked100},
     excel::xl3DColumn},
    {"cylinder",
     {xlCylinderColClustered, xlCylinderColStacked, xlCylinderColStacked100},
     {xlCylinderBarClustered, xlCylinderBarStacked, xlCylinderBarStacked100},
     xlCylinderCol},
    {"cone",
     {xlConeColClustered, xlConeColStacked, xlConeColStacked100},
     {xlConeBarClustered, xlConeBarStacked, xlConeBarStacked100},
     xlConeCol},
    {"pyramid",
     {xlPyramidColClustered, xlPyramidColStacked, xlPyramidColStacked100},
     {xlPyramidBarClustered, xlPyramidBarStacked, xlPyramidBarStacked100},
     xlPyramidCol},
}};

std::int32_t BarType(pugi::xml_node group, pugi::xml_node series, bool is3D) {
  const std::string grouping = schema::Val(group, "grouping", "clustered");
  const bool bars = schema::Val(group, "barDir", "col") == "bar";
  if (!is3D) return (bars ? kBars : kColumns).Of(grouping);
  std::string shape = schema::Val(series, "shape", schema::Val(group, "shape", "box"));
  // The object model has no types for "to max", which cuts off all shapes at the same height.
  if (const auto cut = shape.find("ToMax"); cut != std::string::npos) shape.erase(cut);
  const auto found = std::find_if(kColumnShapes.begin(), kColumnShapes.end(),
                                  [&](const ColumnShape& entry) { return entry.shape == shape; });
  const ColumnShape& entry = found == kColumnShapes.end() ? kColumnShapes[0] : *found;
  if (!bars && grouping == "standard") return entry.behind;
  return (bars ? entry.bars : entry.columns).Of(grouping);
}

/// Returns true if a marker is drawn; `fallback` if the series has no setting.
bool HasMarkers(pugi::xml_node series, bool fallback) {
  const std::string symbol = schema::Val(xml::Child(series, "marker"), "symbol");
  return symbol.empty() ? fallback : symbol != "none";
}

bool HasLine(pugi::xml_node series) { return !xml::Is(FindFill(xml::Child(series, "spPr", "ln")), "noFill"); }

std::int32_t LineType(pugi::xml_node group, pugi::xml_node series) {
  const bool markers = HasMarkers(series, schema::BooleanVal(group, "marker", false));
  if (markers && !HasLine(series)) return excel::xlCombination;
  return (markers ? kMarkedLines : kLines).Of(schema::Val(group, "grouping"));
}

std::int32_t ScatterType(pugi::xml_node group, pugi::xml_node series) {
  // Excel joins the points with lines if the file has no style.
  const std::string style = schema::Val(group, "scatterStyle", "lineMarker");
  if (!HasLine(series) || style == "marker" || style == "none") return excel::xlXYScatter;
  const bool markers = HasMarkers(series, style != "line" && style != "smooth");
  if (schema::BooleanVal(series, "smooth", style.starts_with("smooth"))) {
    return markers ? xlXYScatterSmooth : xlXYScatterSmoothNoMarkers;
  }
  return markers ? xlXYScatterLines : xlXYScatterLinesNoMarkers;
}

/// Returns true if at least one slice of a pie is exploded.
bool IsExploded(pugi::xml_node series) {
  const auto moved = [](pugi::xml_node node) { return schema::IntegerVal(node, "explosion", 0) > 0; };
  if (xml::Child(series, "explosion")) return moved(series);
  const auto points = xml::Children(series, "dPt");
  return !points.empty() && std::all_of(points.begin(), points.end(), moved);
}

std::int32_t StockType(pugi::xml_node group) {
  const bool open = xml::Children(group, "ser").size() >= 4;
  const bool volume = static_cast<bool>(xml::Child(group.parent(), "barChart"));
  if (volume) return open ? xlStockVOHLC : xlStockVHLC;
  return open ? xlStockOHLC : xlStockHLC;
}

std::int32_t TypeIn(pugi::xml_node group, pugi::xml_node series) {
  const std::string_view kind = xml::LocalName(group);
  const std::string grouping = schema::Val(group, "grouping");
  if (kind == "barChart") return BarType(group, series, false);
  if (kind == "bar3DChart") return BarType(group, series, true);
  if (kind == "areaChart") return kAreas.Of(grouping);
  if (kind == "area3DChart") return kAreas3D.Of(grouping);
  if (kind == "lineChart") return LineType(group, series);
  if (kind == "line3DChart") return xl3DLine;
  if (kind == "pieChart") return IsExploded(series) ? excel::xlPieExploded : excel::xlPie;
  if (kind == "pie3DChart") return IsExploded(series) ? excel::xl3DPieExploded : excel::xl3DPie;
  if (kind == "ofPieChart") return schema::Val(group, "ofPieType", "pie") == "bar" ? xlBarOfPie : xlPieOfPie;
  if (kind == "doughnutChart") return IsExploded(series) ? xlDoughnutExploded : xlDoughnut;
  if (kind == "scatterChart") return ScatterType(group, series);
  if (kind == "bubbleChart") {
    return schema::BooleanVal(series, "bubble3D", schema::BooleanVal(group, "bubble3D", false))
               ? excel::xlBubble3DEffect
               : excel::xlBubble;
  }
  if (kind == "radarChart") {
    if (schema::Val(group, "radarStyle") == "filled") return xlRadarFilled;
    return HasMarkers(series, schema::Val(group, "radarStyle") == "marker") ? xlRadarMarkers : xlRadar;
  }
  const bool wireframe = schema::BooleanVal(group, "wireframe", false);
  if (kind == "surface3DChart") return wireframe ? xlSurfaceWireframe : xlSurface;
  if (kind == "surfaceChart") return wireframe ? xlSurfaceTopViewWireframe : xlSurfaceTopView;
  if (kind == "stockChart") return StockType(group);
  return excel::xlCombination;
}

}  // namespace

const std::span<const ChartTypeEntry> kChartTypes = kChartTypeEntries;

const ChartTypeEntry* FindChartType(std::int32_t number) {
  for (const ChartTypeEntry& entry : kChartTypes) {
    if (entry.number == number) return &entry;
  }
  return nullptr;
}

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

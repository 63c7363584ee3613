#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "render/model/ChartReader.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/SeriesData.h"
#include "xlsx/drawing/DrawingFill.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {

namespace schema = xlsx::schema;
namespace xml = xlsx::xml;

namespace {

constexpr std::size_t kMostColors = 54;  // until the colourful palette begins again
constexpr double kLineWidth = 2.25;      // points, of an automatic line of a series
constexpr double kMarkerSize = 7;        // points, of an automatic marker

struct Kind {
  std::string_view element;
  Family family;
  bool is3D;
};
constexpr std::array<Kind, 16> kKinds = {{{"areaChart", Family::kArea, false},
                                          {"area3DChart", Family::kArea, true},
                                          {"barChart", Family::kBar, false},
                                          {"bar3DChart", Family::kBar, true},
                                          {"lineChart", Family::kLine, false},
                                          {"line3DChart", Family::kLine, true},
                                          {"pieChart", Family::kPie, false},
                                          {"pie3DChart", Family::kPie, true},
                                          {"doughnutChart", Family::kDoughnut, false},
                                          {"ofPieChart", Family::kOfPie, false},
                                          {"scatterChart", Family::kScatter, false},
                                          {"bubbleChart", Family::kBubble, false},
                                          {"stockChart", Family::kStock, false},
                                          {"radarChart", Family::kRadar, false},
                                          {"surfaceChart", Family::kSurface, true},
                                          {"surface3DChart", Family::kSurface, true}}};

const Kind* KindOf(pugi::xml_node group) {
  const auto found = std::find_if(kKinds.begin(), kKinds.end(),
                                  [&](const Kind& kind) { return xml::Is(group, kind.element); });
  return found == kKinds.end() ? nullptr : &*found;
}

Grouping GroupingOf(pugi::xml_node group, Family family) {
  const std::string grouping = schema::Val(group, "grouping");
  if (grouping == "stacked") return Grouping::kStacked;
  if (grouping == "percentStacked") return Grouping::kPercent;
  return family == Family::kBar && grouping != "standard" ? Grouping::kClustered : Grouping::kStandard;
}

/// A number within the limits of the schema.
double Limited(pugi::xml_node parent, const char* name, double fallback, double least, double most) {
  const auto number = schema::NumberVal(parent, name);
  return number && std::isfinite(*number) ? std::clamp(*number, least, most) : fallback;
}

std::string DefaultLabelPosition(const GroupModel& group) {
  switch (group.family) {
    case Family::kBar:
      return group.IsStacked() || group.is3D ? "ctr" : "outEnd";
    case Family::kPie:
    case Family::kOfPie:
      return "bestFit";
    case Family::kArea:
    case Family::kDoughnut:
    case Family::kSurface:
      return "ctr";
    case Family::kRadar:
      return "outEnd";
    default:
      return "r";
  }
}

bool IsDrawnAsLine(const GroupModel& group) {
  return group.family == Family::kLine || group.family == Family::kScatter ||
         group.family == Family::kStock || (group.family == Family::kRadar && !group.filled);
}

/// What a series or a point looks like where nothing is set.
ShapeStyle AutomaticStyle(const GroupModel& group, const Color& color) {
  if (IsDrawnAsLine(group) && !group.is3D) {
    return {{}, {color, kLineWidth, {}, LineCap::kRound, LineJoin::kRound}};
  }
  return {SolidFill{color}, {}};
}

MarkerModel ReadMarker(ReadingContext& context, pugi::xml_node marker, const MarkerModel& automatic,
                       bool drawnWithout) {
  constexpr double kLeast = 2, kMost = 72;
  MarkerModel model = automatic;
  const std::string symbol = schema::Val(marker, "symbol", drawnWithout ? "auto" : "none");
  if (symbol != "auto") model.symbol = symbol;
  model.size = Limited(marker, "size", automatic.size, kLeast, kMost);
  model.style = ReadStyle(context.part, xml::Child(marker, "spPr"), automatic.style);
  return model;
}

/// The markers of a series, by its number in the file, where nothing is set.
MarkerModel AutomaticMarker(const Color& color, std::size_t index) {
  constexpr std::array<const char*, 9> kSymbols = {"diamond", "square", "triangle", "x",   "star",
                                                   "circle",  "plus",   "dot",      "dash"};
  return {kSymbols[index % kSymbols.size()], kMarkerSize, {SolidFill{color}, {color, 0.75}}};
}

/// Whether a group draws markers on a series that doesn't speak of them.
bool DrawsMarkers(const GroupModel& group) {
  if (group.family == Family::kLine) return schema::BooleanVal(group.node, "marker", false);
  if (group.family == Family::kScatter) {
    const std::string style = schema::Val(group.node, "scatterStyle", "marker");
    return style != "line" && style != "smooth" && style != "none";
  }
  if (group.family == Family::kRadar) return schema::Val(group.node, "radarStyle") == "marker";
  return false;
}

/// The looks of points that differ in colour, until they begin again.
std::vector<PointModel> VariedPoints(ReadingContext& context, const GroupModel& group,
                                     const SeriesModel& series, bool drawsMarkers) {
  std::vector<PointModel> points;
  const std::size_t count = std::clamp<std::size_t>(series.values.size(), 1, kMostColors);
  for (std::size_t i = 0; i < count; ++i) {
    const Color color = context.styles.SeriesColor(i, count);
    PointModel& point = points.emplace_back();
    point.style = ReadStyle(context.part, xml::Child(series.node, "spPr"), AutomaticStyle(group, color));
    point.marker =
        ReadMarker(context, xml::Child(series.node, "marker"), AutomaticMarker(color, i), drawsMarkers);
  }
  return points;
}

void ReadPoints(ReadingContext& context, const GroupModel& group, SeriesModel& series, bool drawsMarkers,
                bool varies) {
  if (varies) series.palette = VariedPoints(context, group, series, drawsMarkers);
  for (const pugi::xml_node& node : xml::Children(series.node, "dPt")) {
    const long long number = schema::NumberOf(node);
    if (number < 0 || static_cast<std::size_t>(number) >= series.values.size()) continue;
    const auto index = static_cast<std::size_t>(number);
    const ShapeStyle automatic = series.StyleOf(index);
    const MarkerModel automaticMarker = series.MarkerOf(index);
    PointModel& point = series.points[index];
    point.style = ReadStyle(context.part, xml::Child(node, "spPr"), automatic);
    if (const auto marker = xml::Child(node, "marker")) {
      point.marker = ReadMarker(context, marker, automaticMarker, true);
    } else {
      point.marker = automaticMarker;
    }
    // a point with a filling of its own keeps it, unless it says otherwise
    if (xml::Child(node, "invertIfNegative") || xlsx::FindFill(xml::Child(node, "spPr"))) {
      point.invertIfNegative = schema::BooleanVal(node, "invertIfNegative", false);
    }
    if (xml::Child(node, "explosion")) point.explosion = Limited(node, "explosion", 0, 0, 400);
  }
}

/// The colour that Excel since 2010 has for inverted points, in an extension of the series; else white.
Fill ReadInvertedFill(ReadingContext& context, pugi::xml_node series) {
  const Fill white = SolidFill{{255, 255, 255, 1}};
  for (const pugi::xml_node& extension : xml::Children(xml::Child(series, "extLst"), "ext")) {
    const auto properties = xml::Child(extension, "invertSolidFillFmt", "spPr");
    if (properties) return ReadFill(context.part, xlsx::FindFill(properties), white);
  }
  return white;
}

SeriesModel ReadSeries(ReadingContext& context, const GroupModel& group, pugi::xml_node node, int number) {
  SeriesModel series;
  series.node = node;
  series.number = number;
  series.name = xlsx::ShownName(context.part, node);
  const auto values = xlsx::FindValues(node);
  series.values = ReadNumbers(context, values);
  series.valueFormat = context.Format(xml::Text(xml::Child(values, "numRef", "numCache", "formatCode")));
  if (group.HasXValues()) {
    const auto x = xml::Child(node, "xVal");
    series.x = ReadNumbers(context, x);
    if (series.x.empty()) {
      for (std::size_t i = 0; i < series.values.size(); ++i) series.x.push_back(static_cast<double>(i + 1));
    }
  }
  if (group.family == Family::kBubble) {
    const auto sizes = xml::Child(node, "bubbleSize");
    series.sizes = ReadNumbers(context, sizes);
    series.sizeFormat = context.Format(xml::Text(xml::Child(sizes, "numRef", "numCache", "formatCode")));
  }

  const long long idx = std::clamp(schema::IntegerVal(node, "idx", 0), 0LL, 100'000LL);
  const auto index = static_cast<std::size_t>(idx);
  const Color color = context.styles.SeriesColor(index, context.part.Series().size());
  const auto properties = xml::Child(node, "spPr");
  series.style = ReadStyle(context.part, properties, AutomaticStyle(group, color));
  const bool drawsMarkers = DrawsMarkers(group);
  series.marker =
      ReadMarker(context, xml::Child(node, "marker"), AutomaticMarker(color, index), drawsMarkers);
  series.smooth = schema::BooleanVal(node, "smooth", false);
  series.invertIfNegative = schema::BooleanVal(node, "invertIfNegative", false);
  series.invertedFill = ReadInvertedFill(context, node);
  series.bubble3D = schema::BooleanVal(node, "bubble3D", schema::BooleanVal(group.node, "bubble3D", false));
  series.explosion = Limited(node, "explosion", 0, 0, 400);
  const bool varies = group.varyColors && !xlsx::FindFill(properties);
  ReadPoints(context, group, series, drawsMarkers, varies);
  series.labels = ReadLabels(context, node, DefaultLabelPosition(group));
  return series;
}

}  // namespace

bool IsKnownGroup(pugi::xml_node group) { return KindOf(group) != nullptr; }

GroupModel ReadGroup(ReadingContext& context, pugi::xml_node node,
                     const std::map<pugi::xml_node, int>& numbers) {
  GroupModel group;
  const Kind& kind = *KindOf(node);
  group.node = node;
  group.family = kind.family;
  group.is3D = kind.is3D;
  group.grouping = GroupingOf(node, kind.family);
  group.horizontal = kind.family == Family::kBar && schema::Val(node, "barDir", "col") == "bar";
  group.filled = kind.family == Family::kRadar && schema::Val(node, "radarStyle") == "filled";
  group.gapWidth = Limited(node, "gapWidth", 150, 0, 500);
  group.overlap = Limited(node, "overlap", 0, -100, 100);
  group.firstSliceAngle = Limited(node, "firstSliceAng", 0, 0, 360);
  group.holeSize = Limited(node, "holeSize", 10, 1, 90);
  group.bubbleScale = Limited(node, "bubbleScale", 100, 0, 300);
  group.showNegativeBubbles = schema::BooleanVal(node, "showNegBubbles", false);
  group.sizeIsWidth = schema::Val(node, "sizeRepresents", "area") == "w";
  // Excel joins the points with lines where a file doesn't say how they are drawn
  const std::string style = schema::Val(node, "scatterStyle", "lineMarker");
  group.markersOnly = kind.family == Family::kScatter && (style == "marker" || style == "none");
  const auto readLines = [&](const char* name, std::optional<Stroke>& stroke) {
    const auto lines = xml::Child(node, name);
    if (!lines) return;
    stroke = ReadStroke(context.part, xml::Child(lines, "spPr", "ln"), {Color{0, 0, 0, 1}, 0.75});
  };
  readLines("dropLines", group.dropLines);
  readLines("hiLowLines", group.highLowLines);
  const auto all = xml::Children(node, "ser");
  // points differ in colour where there is nothing else to tell apart
  group.varyColors = schema::BooleanVal(node, "varyColors", group.IsRound()) &&
                     (group.IsRound() || context.part.Series().size() == 1);
  for (const pugi::xml_node& series : all) {
    const auto number = numbers.find(series);
    if (number != numbers.end()) group.series.push_back(ReadSeries(context, group, series, number->second));
  }
  std::sort(group.series.begin(), group.series.end(),
            [](const SeriesModel& a, const SeriesModel& b) { return a.number < b.number; });
  for (const SeriesModel& series : group.series) {
    if (group.HasXValues()) break;
    group.categories = ReadCategories(context, xml::Child(series.node, "cat"));
    if (group.categories.empty()) continue;
    group.outerLevels = ReadOuterLevels(xml::Child(series.node, "cat"), group.categories.size());
    break;
  }
  const std::size_t named = group.categories.size();
  for (std::size_t i = named; i < group.PointCount(); ++i) {
    group.categories.push_back(named == 0 ? std::to_string(i + 1) : std::string());
  }
  return group;
}

}  // namespace plotsmith::render

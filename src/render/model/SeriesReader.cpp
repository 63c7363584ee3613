#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <set>
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

constexpr std::size_t kMostColors = 54;                      // the varied colours repeat after this number
constexpr double kLineWidth = 2.25;                          // points; of an automatic line of a series
constexpr double kMarkerSize = 7;                            // points; of an automatic marker
constexpr const char *kAutomatic = "auto", *kNone = "none";  // values of ST_MarkerStyle

struct Kind {
  std::string_view element;
  Family family;

  /// Returns whether the group is drawn in 3-D. This is true for surfaces, even if they are seen from above,
  /// and for groups with "3D" in the name of their element.
  bool Is3D() const { return family == Family::kSurface || element.find("3D") != std::string_view::npos; }
};
constexpr std::array<Kind, 16> kKinds = {{{"areaChart", Family::kArea},
                                          {"area3DChart", Family::kArea},
                                          {"barChart", Family::kBar},
                                          {"bar3DChart", Family::kBar},
                                          {"lineChart", Family::kLine},
                                          {"line3DChart", Family::kLine},
                                          {"pieChart", Family::kPie},
                                          {"pie3DChart", Family::kPie},
                                          {"doughnutChart", Family::kDoughnut},
                                          {"ofPieChart", Family::kOfPie},
                                          {"scatterChart", Family::kScatter},
                                          {"bubbleChart", Family::kBubble},
                                          {"stockChart", Family::kStock},
                                          {"radarChart", Family::kRadar},
                                          {"surfaceChart", Family::kSurface},
                                          {"surface3DChart", Family::kSurface}}};

/// Returns the kind of an element that is a plot group.
const Kind& GroupKindOf(pugi::xml_node group) {
  return *std::find_if(kKinds.begin(), kKinds.end(),
                       [&](const Kind& kind) { return xml::Is(group, kind.element); });
}

Grouping GroupingOf(pugi::xml_node group, Family family) {
  const std::string grouping = schema::Val(group, "grouping");
  if (grouping == "stacked") return Grouping::kStacked;
  if (grouping == "percentStacked") return Grouping::kPercent;
  return family == Family::kBar && grouping != "standard" ? Grouping::kClustered : Grouping::kStandard;
}

/// Reads a number, which may have a percent sign, and limits it to a range.
double Limited(pugi::xml_node parent, const char* name, double fallback, double least, double most) {
  std::string text = schema::Val(parent, name);
  if (text.ends_with('%')) text.pop_back();
  const auto number = xml::ParseDouble(text);
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

/// Returns the look of a series or point without settings.
ShapeStyle AutomaticStyle(const GroupModel& group, const Color& color) {
  if (IsDrawnAsLine(group) && !group.is3D) {
    return {{}, {color, kLineWidth, {}, LineCap::kRound, LineJoin::kRound}};
  }
  return {SolidFill{color}, {}};
}

/// Reads a marker (c:marker). A marker without a symbol gets `defaultSymbol`.
MarkerModel ReadMarker(ReadingContext& context, pugi::xml_node marker, const MarkerModel& automatic,
                       const char* defaultSymbol) {
  constexpr double kLeast = 2, kMost = 72;
  MarkerModel model = automatic;
  const std::string symbol = schema::Val(marker, "symbol", defaultSymbol);
  if (symbol != kAutomatic) model.symbol = symbol;
  model.size = Limited(marker, "size", automatic.size, kLeast, kMost);
  model.style = ReadStyle(context.part, xml::Child(marker, "spPr"), automatic.style);
  return model;
}

/// Returns the markers of a series without settings. `index` is the number of the series in the file, from 0.
MarkerModel AutomaticMarker(const Color& color, std::size_t index) {
  constexpr std::array<const char*, 9> kSymbols = {"diamond", "square", "triangle", "x",   "star",
                                                   "circle",  "plus",   "dot",      "dash"};
  return {kSymbols[index % kSymbols.size()], kMarkerSize, {SolidFill{color}, {color, 0.75}}};
}

/// Returns the symbol of those series in a group that don't set one.
const char* DefaultSymbol(const GroupModel& group) {
  bool draws = false;
  if (group.family == Family::kLine) {
    draws = schema::BooleanVal(group.node, "marker", false);
  } else if (group.family == Family::kScatter) {
    const std::string style = schema::Val(group.node, "scatterStyle", "marker");
    draws = style != "line" && style != "smooth" && style != "none";
  } else if (group.family == Family::kRadar) {
    draws = schema::Val(group.node, "radarStyle") == "marker";
  }
  return draws ? kAutomatic : kNone;
}

/// Returns the looks of points in varied colours, up to the last one before they repeat.
std::vector<PointModel> VariedPoints(ReadingContext& context, const GroupModel& group,
                                     const SeriesModel& series) {
  std::vector<PointModel> points;
  const std::size_t count = std::clamp<std::size_t>(series.values.size(), 1, kMostColors);
  for (std::size_t i = 0; i < count; ++i) {
    const Color color = context.styles.SeriesColor(i, count);
    PointModel& point = points.emplace_back();
    point.style = ReadStyle(context.part, xml::Child(series.node, "spPr"), AutomaticStyle(group, color));
    point.marker = ReadMarker(context, xml::Child(series.node, "marker"), AutomaticMarker(color, i),
                              DefaultSymbol(group));
  }
  return points;
}

/// Reads the looks of those points that differ from their series.
void ReadPoints(ReadingContext& context, const GroupModel& group, SeriesModel& series) {
  const bool varies = group.varyColors && !xlsx::FindFill(xml::Child(series.node, "spPr"));
  if (varies) series.palette = VariedPoints(context, group, series);
  for (const pugi::xml_node& node : xml::Children(series.node, "dPt")) {
    const long long number = schema::NumberOf(node);
    if (number < 0 || static_cast<std::size_t>(number) >= series.values.size()) continue;
    const auto index = static_cast<std::size_t>(number);
    const ShapeStyle automatic = series.StyleOf(index);
    const MarkerModel automaticMarker = series.MarkerOf(index);
    PointModel& point = series.points[index];
    point.style = ReadStyle(context.part, xml::Child(node, "spPr"), automatic);
    if (const auto marker = xml::Child(node, "marker")) {
      point.marker = ReadMarker(context, marker, automaticMarker, kAutomatic);
    } else {
      point.marker = automaticMarker;
    }
    // A point with a fill of its own isn't inverted, unless it has the setting itself.
    if (xml::Child(node, "invertIfNegative") || xlsx::FindFill(xml::Child(node, "spPr"))) {
      point.invertIfNegative = schema::BooleanVal(node, "invertIfNegative", false);
    }
    if (xml::Child(node, "explosion")) point.explosion = Limited(node, "explosion", 0, 0, 400);
  }
}

/// Reads the fill of inverted points from the extension that Excel 2010 and newer versions write. Without the
/// extension, the fill is white.
Fill ReadInvertedFill(ReadingContext& context, pugi::xml_node series) {
  const Fill white = SolidFill{{255, 255, 255, 1}};
  for (const pugi::xml_node& extension : xml::Children(xml::Child(series, "extLst"), "ext")) {
    const auto properties = xml::Child(extension, "invertSolidFillFmt", "spPr");
    if (properties) return ReadFill(context.part, xlsx::FindFill(properties), white);
  }
  return white;
}

FormatPointer ReadFormat(ReadingContext& context, pugi::xml_node data) {
  return context.Format(xml::Text(xml::Child(data, "numRef", "numCache", "formatCode")));
}

/// Returns the points of a pie of pie that are in its second plot, by index from 0.
std::set<std::size_t> SplitOf(pugi::xml_node group, const std::vector<double>& values) {
  std::set<std::size_t> points;
  const std::string type = schema::Val(group, "splitType", "auto");
  if (type == "cust") {
    for (const pugi::xml_node& point : xml::Children(xml::Child(group, "custSplit"), "secondPiePt")) {
      const long long index = xml::IntegerAttribute(point, "val", -1);
      if (index >= 0 && index < static_cast<long long>(values.size())) {
        points.insert(static_cast<std::size_t>(index));
      }
    }
    return points;
  }
  const auto position = schema::NumberVal(group, "splitPos");
  const bool hasPosition = position && std::isfinite(*position);
  if (hasPosition && (type == "val" || type == "percent")) {
    long double whole = 0;
    for (const double value : values) whole += std::isfinite(value) ? std::abs(value) : 0;
    const long double limit = type == "val" ? *position : *position / 100 * whole;
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (std::abs(values[i]) < limit) points.insert(i);
    }
    return points;
  }
  const std::size_t count = values.size();
  constexpr std::size_t kPart = 3;  // By default, the last third of the points is in the second plot.
  std::size_t last = count < 2 ? 0 : (count + kPart - 1) / kPart;
  if (hasPosition && type == "pos") {
    last = static_cast<std::size_t>(std::clamp(std::round(*position), 0.0, static_cast<double>(count)));
  }
  for (std::size_t i = count - last; i < count; ++i) points.insert(i);
  return points;
}

/// Reads which points of a series are in the second plot of a pie of pie, and adds the point "Other".
void ReadSplit(pugi::xml_node group, SeriesModel& series) {
  series.secondPlot = SplitOf(group, series.values);
  if (series.secondPlot.empty()) return;
  double sum = 0;
  for (const std::size_t point : series.secondPlot) {
    if (std::isfinite(series.values[point])) sum += std::abs(series.values[point]);
  }
  series.values.push_back(std::min(sum, std::numeric_limits<double>::max()));
}

/// Reads the numbers of a series and their formats.
void ReadData(ReadingContext& context, const GroupModel& group, SeriesModel& series) {
  const auto values = xlsx::FindValues(series.node);
  series.values = ReadNumbers(context, values, context.isUnavailableBlank ? nullptr : &series.bridged);
  series.valueFormat = ReadFormat(context, values);
  if (group.family == Family::kOfPie) ReadSplit(group.node, series);
  if (group.HasXValues()) series.x = ReadNumbers(context, xml::Child(series.node, "xVal"));
  if (group.HasXValues() && series.x.empty()) {
    for (std::size_t i = 0; i < series.values.size(); ++i) series.x.push_back(static_cast<double>(i + 1));
  }
  if (group.family == Family::kBubble) {
    const auto sizes = xml::Child(series.node, "bubbleSize");
    series.sizes = ReadNumbers(context, sizes);
    series.sizeFormat = ReadFormat(context, sizes);
  }
}

/// Reads the looks of a series and of its points.
void ReadLooks(ReadingContext& context, const GroupModel& group, SeriesModel& series) {
  const pugi::xml_node node = series.node;
  const long long idx = std::clamp(schema::IntegerVal(node, "idx", 0), 0LL, 100'000LL);
  const auto index = static_cast<std::size_t>(idx);
  const Color color = context.styles.SeriesColor(index, context.part.Series().size());
  series.style = ReadStyle(context.part, xml::Child(node, "spPr"), AutomaticStyle(group, color));
  series.marker =
      ReadMarker(context, xml::Child(node, "marker"), AutomaticMarker(color, index), DefaultSymbol(group));
  series.smooth = schema::BooleanVal(node, "smooth", false);
  series.invertIfNegative = schema::BooleanVal(node, "invertIfNegative", false);
  series.invertedFill = ReadInvertedFill(context, node);
  series.bubble3D = schema::BooleanVal(node, "bubble3D", schema::BooleanVal(group.node, "bubble3D", false));
  series.explosion = Limited(node, "explosion", 0, 0, 400);
  ReadPoints(context, group, series);
}

SeriesModel ReadSeries(ReadingContext& context, const GroupModel& group, pugi::xml_node node, int number) {
  SeriesModel series;
  series.node = node;
  series.number = number;
  series.name = xlsx::ShownName(context.part, node);
  ReadData(context, group, series);
  ReadLooks(context, group, series);
  series.labels = ReadLabels(context, node, DefaultLabelPosition(group));
  return series;
}

/// Reads the settings of a group itself, without its series and categories.
void ReadSettings(ReadingContext& context, GroupModel& group) {
  const pugi::xml_node node = group.node;
  const Kind& kind = GroupKindOf(node);
  group.family = kind.family;
  group.is3D = kind.Is3D();
  group.grouping = GroupingOf(node, kind.family);
  group.horizontal = kind.family == Family::kBar && schema::Val(node, "barDir", "col") == "bar";
  group.filled = kind.family == Family::kRadar && schema::Val(node, "radarStyle") == "filled";
  group.gapWidth = Limited(node, "gapWidth", 150, 0, 500);
  group.overlap = Limited(node, "overlap", 0, -100, 100);
  if (kind.family == Family::kOfPie) {
    group.isBarOfPie = schema::Val(node, "ofPieType", "pie") == "bar";
    group.secondPlotSize = Limited(node, "secondPieSize", 75, 5, 200);
  }
  group.firstSliceAngle = Limited(node, "firstSliceAng", 0, 0, 360);
  group.holeSize = Limited(node, "holeSize", 10, 1, 90);
  group.bubbleScale = Limited(node, "bubbleScale", 100, 0, 300);
  group.showNegativeBubbles = schema::BooleanVal(node, "showNegBubbles", false);
  group.sizeIsWidth = schema::Val(node, "sizeRepresents", "area") == "w";
  // If the file has no style, Excel joins the points with lines.
  const std::string style = schema::Val(node, "scatterStyle", "lineMarker");
  group.markersOnly = kind.family == Family::kScatter && (style == "marker" || style == "none");
  // Colours differ by point only if the group has slices or the chart has one series.
  group.varyColors = schema::BooleanVal(node, "varyColors", group.IsRound()) &&
                     (group.IsRound() || context.part.Series().size() == 1);
  const auto readLines = [&](const char* name, std::optional<Stroke>& stroke) {
    const auto lines = xml::Child(node, name);
    if (!lines) return;
    stroke = ReadStroke(context.part, xml::Child(lines, "spPr", "ln"), {Color{0, 0, 0, 1}, 0.75});
  };
  readLines("dropLines", group.dropLines);
  readLines("hiLowLines", group.highLowLines);
  readLines("serLines", group.seriesLines);
}

/// Reads the categories of the first series that has some. Points beyond them have an empty text, or their
/// numbers if no series has categories.
void ReadCategoriesOf(ReadingContext& context, GroupModel& group) {
  for (const SeriesModel& series : group.series) {
    if (group.HasXValues()) break;
    const auto data = xml::Child(series.node, "cat");
    group.categories = ReadCategories(context, data);
    if (group.categories.empty()) continue;
    group.outerLevels = ReadOuterLevels(data, group.categories.size());
    break;
  }
  const std::size_t named = group.categories.size();
  for (std::size_t i = named; i < group.PointCount(); ++i) {
    group.categories.push_back(named == 0 ? std::to_string(i + 1) : std::string());
  }
  if (group.series.empty() || group.series.front().secondPlot.empty()) return;
  group.categories[group.series.front().values.size() - 1] = "Other";
}

}  // namespace

GroupModel ReadGroup(ReadingContext& context, pugi::xml_node node,
                     const std::map<pugi::xml_node, int>& numbers) {
  GroupModel group;
  group.node = node;
  ReadSettings(context, group);
  for (const pugi::xml_node& series : xml::Children(node, "ser")) {
    const auto number = numbers.find(series);
    if (number != numbers.end()) group.series.push_back(ReadSeries(context, group, series, number->second));
  }
  std::sort(group.series.begin(), group.series.end(),
            [](const SeriesModel& a, const SeriesModel& b) { return a.number < b.number; });
  ReadCategoriesOf(context, group);
  return group;
}

}  // namespace plotsmith::render

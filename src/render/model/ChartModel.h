#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <set>
#include <string>
#include <vector>

#include "render/Drawing.h"
#include "render/Shadow.h"
#include "render/model/Analysis.h"
#include "xlsx/chart/rules/DataExtent.h"
#include "xlsx/chart/rules/ScaleRules.h"
#include "xlsx/numberformat/DateSystem.h"
#include "xlsx/numberformat/NumberFormat.h"

/// What of a chart part is drawn, read once: defaults, themes and inheritance are worked in.
namespace plotsmith::render {

struct ShapeStyle {
  Fill fill;
  Stroke stroke;
  std::optional<Shadow> shadow = {};
};

struct TextStyle {
  Font font;
  Color color;
  std::optional<double> rotation;  ///< degrees clockwise; nothing where Excel decides
  bool stacked = false;            ///< one letter below the other
};

struct TextRun {
  std::string text;
  Font font;
  Color color;
};
/// Paragraphs, each of runs; a run has no line feeds.
struct RichText {
  std::vector<std::vector<TextRun>> paragraphs;
  std::optional<double> rotation;
  bool stacked = false;

  bool IsEmpty() const;
};

/// A layout by hand, in fractions of the chart. `xIsEdge` and the like say that a value is a place; else it
/// is a distance from the automatic place, or an extent.
struct ManualLayout {
  bool inner = false;
  std::optional<double> x, y, width, height;
  bool xIsEdge = false, yIsEdge = false, widthIsEdge = false, heightIsEdge = false;
};

struct TitleModel {
  RichText text;
  ShapeStyle style;
  std::optional<ManualLayout> layout;
  bool overlay = false;
};

/// A number format with its code; never null.
using FormatPointer = std::shared_ptr<const xlsx::NumberFormat>;

struct LabelModel {
  bool showsValue = false, showsPercent = false, showsCategory = false, showsSeries = false;
  bool showsBubbleSize = false, showsKey = false;
  std::optional<std::string> separator;
  std::string position;  ///< ST_DLblPos; never empty
  FormatPointer format;  ///< of the value, or of a percentage; null where it follows the data
  TextStyle text;
  ShapeStyle style;
  RichText own;  ///< a text by hand, which replaces the rest
  std::optional<ManualLayout> layout;

  bool ShowsAnything() const;
};
struct LabelsModel {
  LabelModel common;
  std::map<std::size_t, LabelModel> points;  ///< from 0
  std::set<std::size_t> deleted;
  bool leaderLines = false;
  Stroke leaderStroke;

  /// The label of a point, from 0; null if it has none.
  const LabelModel* Of(std::size_t point) const;
};

struct MarkerModel {
  std::string symbol;  ///< ST_MarkerStyle, never "auto"; "none" where none is drawn
  double size = 7;     ///< points
  ShapeStyle style;
};

struct PointModel {
  ShapeStyle style;
  std::optional<MarkerModel> marker;
  std::optional<double> explosion;
  std::optional<bool> invertIfNegative;  ///< nothing where it is as the series says
};

/// A trendline of a series (c:trendline).
struct Trendline {
  TrendKind kind = TrendKind::kLinear;
  std::size_t period = 2;  ///< of a moving average, in points
  std::string name;
  double forward = 0, backward = 0;  ///< how far it goes on beyond the points
  double shift = 0;  ///< what is taken from x for the number along the axis, as AxisMap::OfX takes it
  std::vector<Point> points;  ///< x and value; empty if no line could be fitted
  ShapeStyle style;
  RichText label;  ///< its equation and how well it fits
  ShapeStyle labelStyle;
  std::optional<ManualLayout> labelLayout;
};

struct SeriesModel {
  pugi::xml_node node;
  int number = 1;  ///< in plot order, from 1
  std::string name;
  std::vector<double> values;  ///< NaN where there is none
  std::vector<double> x;       ///< of scatter and bubble charts; counted from 1 where they are texts
  std::vector<double> sizes;   ///< of bubbles
  FormatPointer valueFormat, sizeFormat;
  ShapeStyle style;  ///< of bars, areas, bubbles and slices; of lines the stroke
  MarkerModel marker;
  bool smooth = false;
  bool invertIfNegative = false;
  Fill invertedFill;  ///< what a solid filling becomes below zero
  bool bubble3D = false;
  double explosion = 0;                      ///< percent of the radius
  std::vector<PointModel> palette;           ///< of points in varied colours; begins again behind its end
  std::map<std::size_t, PointModel> points;  ///< those that differ from these, from 0
  LabelsModel labels;
  std::vector<ErrorBars> errorBars;
  std::vector<Trendline> trendlines;

  const ShapeStyle& StyleOf(std::size_t point) const;
  /// The same with the filling that a point has by its value or size, where those below zero are inverted.
  ShapeStyle StyleOf(std::size_t point, double value) const;
  bool IsInverted(std::size_t point, double value) const;
  const MarkerModel& MarkerOf(std::size_t point) const;
};

/// Bars from the first series of a group of lines to the last one.
struct UpDownBars {
  double gapWidth = 150;  ///< percent of a bar's width
  ShapeStyle up, down;    ///< the last series above the first, or below it
};

/// What neighbouring categories have in common, on an outer level.
struct CategoryGroup {
  std::size_t first = 0, end = 0;  ///< of the categories, from 0 to before the end
  std::string text;
};
using CategoryLevel = std::vector<CategoryGroup>;

enum class Family : std::uint8_t {
  kArea,
  kBar,
  kLine,
  kPie,
  kDoughnut,
  kScatter,
  kBubble,
  kStock,
  kRadar,
  kSurface,
  kOfPie
};
enum class Grouping : std::uint8_t { kStandard, kClustered, kStacked, kPercent };

/// A band of values on a surface, which has a colour of its own.
struct SurfaceBand {
  double from = 0, to = 0;
  ShapeStyle style;  ///< of lines alone the stroke
};

struct GroupModel {
  pugi::xml_node node;
  Family family = Family::kBar;
  Grouping grouping = Grouping::kStandard;
  bool is3D = false;
  bool horizontal = false;  ///< bars
  bool filled = false;      ///< radar charts, which are drawn as areas
  bool varyColors = false;
  bool markersOnly = false;            ///< a scatter chart without lines
  double gapWidth = 150, overlap = 0;  ///< percent
  double firstSliceAngle = 0;          ///< degrees clockwise from twelve o'clock
  double holeSize = 10;                ///< percent
  double bubbleScale = 100;            ///< percent
  bool showNegativeBubbles = false;
  bool sizeIsWidth = false;  ///< else the area of a bubble is its size
  std::optional<Stroke> dropLines, highLowLines;
  std::optional<UpDownBars> upDownBars;
  bool wireframe = false;  ///< a surface of lines
  bool isContour = false;  ///< a surface that is seen from above
  std::vector<SurfaceBand> bands;
  std::vector<SeriesModel> series;
  std::vector<std::string> categories;     ///< texts of the tick labels; as many as there are points
  std::vector<CategoryLevel> outerLevels;  ///< from the one next to the categories outwards
  /// Indices into ChartModel::axes, -1 where the group has none. `category` is the axis of X values of a
  /// scatter or bubble chart.
  int category = -1, value = -1, depth = -1;

  bool IsStacked() const { return grouping == Grouping::kStacked || grouping == Grouping::kPercent; }
  bool IsRound() const {
    return family == Family::kPie || family == Family::kDoughnut || family == Family::kOfPie;
  }
  bool HasXValues() const { return family == Family::kScatter || family == Family::kBubble; }
  /// The number of points of the longest series.
  std::size_t PointCount() const;
};

enum class AxisKind : std::uint8_t { kCategory, kDate, kValue, kSeries };
enum class Side : std::uint8_t { kLeft, kRight, kTop, kBottom };

struct DisplayUnits {
  double factor = 1;
  std::optional<TitleModel> label;
};

/// The days, months or years along an axis of dates. A slot is one of them.
enum class TimeUnit : std::uint8_t { kDays, kMonths, kYears };
struct DateSlots {
  TimeUnit base = TimeUnit::kDays;
  long long first = 0;            ///< the number of the first slot, days from 1970 or months or years from 0
  double count = 0;               ///< of slots
  std::vector<double> positions;  ///< of the categories, in slots from the first
  double majorUnit = 0;           ///< from label to label; 0 where Excel decides
  TimeUnit majorBase = TimeUnit::kDays;
};

struct AxisModel {
  pugi::xml_node node;
  int number = 1;  ///< in the chart part, from 1
  AxisKind kind = AxisKind::kCategory;
  Side side = Side::kBottom;  ///< as the chart part has it; see IsUpright
  bool hidden = false;
  bool reversed = false;
  std::optional<double> logBase;
  xlsx::AxisScale scale;        ///< of an axis of values
  xlsx::AxisSettings settings;  ///< what of the scale is set by hand
  xlsx::DataExtent extent;      ///< of the data along an axis of values
  std::optional<double> minorUnit;
  FormatPointer format;
  std::string tickLabels = "nextTo";                    ///< ST_TickLblPos
  std::string majorTicks = "out", minorTicks = "none";  ///< ST_TickMark
  Stroke line;
  std::optional<Stroke> majorGridlines, minorGridlines;
  std::optional<TitleModel> title;
  TextStyle text;
  int crossed = -1;                  ///< index of the axis that it crosses
  std::string crosses = "autoZero";  ///< ST_Crosses
  std::optional<double> crossesAt;
  bool crossesBetween = true;             ///< the axis of values crosses between categories, not on one
  long long labelSkip = 0, tickSkip = 1;  ///< 0 where Excel decides
  DisplayUnits units;
  std::vector<std::string> categories;  ///< of its first group
  std::vector<CategoryLevel> outerLevels;
  std::optional<DateSlots> dates;  ///< of an axis of dates whose categories are dates

  bool IsUpright() const { return side == Side::kLeft || side == Side::kRight; }
  bool IsOfValues() const { return kind == AxisKind::kValue; }
};

struct LegendEntry {
  std::string text;
  TextStyle style;
  int series = 0, point = 0;  ///< from 1; point is 0 where the entry is of a series
  int trendline = 0;          ///< the number of the series' trendline that it is of, from 1
  int band = 0;               ///< the number of the surface's band that it is of, from 1
};
struct LegendModel {
  std::string position = "r";  ///< ST_LegendPos
  bool overlay = false;
  std::optional<ManualLayout> layout;
  ShapeStyle style;
  TextStyle text;
  std::vector<LegendEntry> entries;

  /// Whether it lies above or below the plot area, with its entries side by side.
  bool IsFlat() const { return position == "t" || position == "b"; }
};

/// A table of the values below the plot area (c:dTable).
struct DataTable {
  int axis = 0;  ///< index of the axis of categories that it is below
  bool horizontalLines = false, verticalLines = false, outline = false;
  bool keys = false;  ///< legend keys beside the names of the series
  Stroke stroke;
  TextStyle text;
};

struct ChartModel {
  ShapeStyle chartArea, plotArea;
  bool roundedCorners = false;
  std::optional<TitleModel> title;
  std::optional<LegendModel> legend;
  std::optional<DataTable> table;
  std::optional<ManualLayout> layout;  ///< of the plot area
  std::vector<GroupModel> groups;      ///< those with series, in the order in which they are drawn
  std::vector<AxisModel> axes;
  std::vector<AxisModel> spokes;  ///< those of a radar chart, which draws them by itself
  std::string blanks = "gap";     ///< ST_DispBlanksAs
  xlsx::DateSystem dates = xlsx::DateSystem::k1900;

  bool Is3D() const;
  /// Whether all groups are pies or doughnuts.
  bool IsRound() const;
  /// Null for a number that no series has.
  const SeriesModel* FindSeries(int number) const;
  const GroupModel* GroupOfSeries(int number) const;
};

}  // namespace plotsmith::render

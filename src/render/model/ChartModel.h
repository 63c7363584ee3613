#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "render/Drawing.h"
#include "render/Shadow.h"
#include "render/model/Analysis.h"
#include "render/model/DateSlots.h"
#include "render/text/RichText.h"
#include "xlsx/chart/rules/DataExtent.h"
#include "xlsx/chart/rules/ScaleRules.h"
#include "xlsx/numberformat/DateSystem.h"
#include "xlsx/numberformat/NumberFormat.h"

/// A chart as it is drawn. It is read once from the part; defaults, themes and inheritance are resolved.
namespace plotsmith::render {

/// Filling and outline of an element.
struct ShapeStyle {
  Fill fill;
  Stroke stroke;
  std::optional<Shadow> shadow = {};
};

/// A layout that a person set (c:manualLayout), in fractions of the chart's width and height. A missing value
/// is automatic.
struct ManualLayout {
  /// The layout of a plot area is that of the rectangle between the axes, without tick labels.
  bool inner = false;
  std::optional<double> x, y;             ///< left and top edge, or distances from the automatic place
  std::optional<double> width, height;    ///< extents, or the right and bottom edge
  bool xIsEdge = false, yIsEdge = false;  ///< `x` and `y` are edges
  bool widthIsEdge = false, heightIsEdge = false;  ///< `width` and `height` are edges
};

/// The title of a chart or of an axis, or the label of display units.
struct TitleModel {
  RichText text;
  ShapeStyle style;
  std::optional<ManualLayout> layout;
  bool overlay = false;  ///< it takes no room from the plot area
};

/// A number format.
using FormatPointer = std::shared_ptr<const xlsx::NumberFormat>;

/// What the data label of a point shows, and how it looks.
struct LabelModel {
  bool showsValue = false, showsPercent = false, showsCategory = false, showsSeries = false;
  bool showsBubbleSize = false, showsKey = false;
  std::optional<std::string> separator;  ///< between the parts of the text; ", " if there is none
  std::string position;                  ///< of ST_DLblPos; never empty
  /// The format of the value, or of the percentage if there is no value; null for the format of the data.
  FormatPointer format;
  TextStyle text;
  ShapeStyle style;
  RichText own;  ///< a text that a person typed, which replaces all other parts; empty if there is none
  std::optional<ManualLayout> layout;

  /// Returns whether the label has any part of a text.
  bool ShowsAnything() const;
};
/// The data labels of a series.
struct LabelsModel {
  LabelModel common;
  std::map<std::size_t, LabelModel> points;  ///< labels that differ from `common`, by their points from 0
  std::set<std::size_t> deleted;             ///< points without a label, from 0
  bool leaderLines = false;
  Stroke leaderStroke;

  /// Returns the label of a point by its index, from 0, or null if the point has none.
  const LabelModel* Of(std::size_t point) const;
};

/// The marker of a point of a line.
struct MarkerModel {
  std::string symbol;  ///< of ST_MarkerStyle, but not "auto"; "none" for no marker
  double size = 7;     ///< edge of the square around it, in points
  ShapeStyle style;
};

/// The look of a point that differs from its series.
struct PointModel {
  ShapeStyle style;
  std::optional<MarkerModel> marker;
  std::optional<double> explosion;       ///< percent of the radius; nothing for that of the series
  std::optional<bool> invertIfNegative;  ///< nothing for that of the series
};

/// A trendline of a series (c:trendline).
struct Trendline {
  TrendKind kind = TrendKind::kLinear;
  std::size_t period = 2;  ///< of a moving average, in points
  std::string name;
  double forward = 0, backward = 0;  ///< extension beyond the points, in X units
  double shift = 0;                  ///< subtracted from x to get the argument of AxisMap::OfX
  std::optional<TrendCurve> curve;   ///< nothing if none could be fitted, or for a moving average
  double from = 0, to = 0;           ///< the ends of the curve with its extensions
  std::vector<Point> points;         ///< x and value of a moving average
  ShapeStyle style;
  RichText label;  ///< its equation and how well it fits
  ShapeStyle labelStyle;
  std::optional<ManualLayout> labelLayout;
};

struct AxisModel;
/// Returns the X values between which the curve of a trendline may be seen along an axis, which may be null.
/// The first is above zero where the curve or the axis needs that. Nothing if the axis shows no part of the
/// curve.
std::optional<std::pair<double, double>> SeenPart(const Trendline& line, const AxisModel* axis);

struct SeriesModel {
  pugi::xml_node node;  ///< c:ser
  int number = 1;       ///< in plot order, from 1
  std::string name;
  std::vector<double> values;  ///< NaN for points without a value
  std::vector<double> x;       ///< X values of scatter and bubble charts; 1, 2, 3, ... if they are texts
  std::vector<double> sizes;   ///< sizes of bubbles
  FormatPointer valueFormat, sizeFormat;
  ShapeStyle style;  ///< of bars, areas, bubbles and slices; lines have its stroke
  MarkerModel marker;
  bool smooth = false;
  bool invertIfNegative = false;
  Fill invertedFill;  ///< replaces a solid filling below zero if that is inverted
  bool bubble3D = false;
  double explosion = 0;             ///< percent of the radius
  std::vector<PointModel> palette;  ///< looks of points in varied colours, used in rotation; empty otherwise
  std::map<std::size_t, PointModel> points;  ///< points with a look of their own, by index from 0
  LabelsModel labels;
  std::vector<ErrorBars> errorBars;
  std::vector<Trendline> trendlines;

  /// Returns the style of a point by its index, from 0.
  const ShapeStyle& StyleOf(std::size_t point) const;
  /// Returns the style of a point with a value or size. If that is below zero, the filling may be inverted.
  ShapeStyle StyleOf(std::size_t point, double value) const;
  /// Returns whether the filling of a point with this value is inverted.
  bool IsInverted(std::size_t point, double value) const;
  /// Returns the marker of a point by its index, from 0.
  const MarkerModel& MarkerOf(std::size_t point) const;
};

/// Bars from the first series of a group of lines to the last one.
struct UpDownBars {
  double gapWidth = 150;  ///< percent of a bar's width
  ShapeStyle up, down;    ///< the last series above the first, or below it
};

/// Neighbouring categories that have one text in common, on an outer level.
struct CategoryGroup {
  std::size_t first = 0,
              end = 0;  ///< the categories from `first` up to but not including `end`; they count from 0
  std::string text;
};
/// The groups of an outer level of categories, in their order.
using CategoryLevel = std::vector<CategoryGroup>;

/// The kinds of plot groups. Those in 3-D have the same families as the flat ones.
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
/// How the series of a group share a category.
enum class Grouping : std::uint8_t { kStandard, kClustered, kStacked, kPercent };

/// A band of values on a surface, which has a colour of its own.
struct SurfaceBand {
  double from = 0, to = 0;
  ShapeStyle style;  ///< a wireframe uses only the stroke
};

struct GroupModel {
  pugi::xml_node node;  ///< c:barChart and the like
  Family family = Family::kBar;
  Grouping grouping = Grouping::kStandard;
  bool is3D = false;
  bool horizontal = false;             ///< horizontal bars
  bool filled = false;                 ///< a radar chart that is drawn as areas
  bool varyColors = false;             ///< points differ in colour
  bool markersOnly = false;            ///< a scatter chart without lines
  double gapWidth = 150, overlap = 0;  ///< percent
  double firstSliceAngle = 0;          ///< degrees clockwise from twelve o'clock
  double holeSize = 10;                ///< percent
  double bubbleScale = 100;            ///< percent
  bool showNegativeBubbles = false;
  bool sizeIsWidth = false;  ///< the size is the width of a bubble, otherwise its area
  std::optional<Stroke> dropLines, highLowLines;
  std::optional<UpDownBars> upDownBars;
  bool wireframe = false;  ///< a surface of lines
  bool isContour = false;  ///< a surface that is seen from above
  std::vector<SurfaceBand> bands;
  std::vector<SeriesModel> series;
  std::vector<std::string> categories;     ///< texts of the tick labels, at least one for each point
  std::vector<CategoryLevel> outerLevels;  ///< from the innermost to the outermost
  /// Indices into ChartModel::axes; -1 if the group has no such axis. `category` is the axis of the X values
  /// of a scatter or bubble chart.
  int category = -1, value = -1, depth = -1;

  /// Returns whether the values of series are added up.
  bool IsStacked() const { return grouping == Grouping::kStacked || grouping == Grouping::kPercent; }
  /// Returns whether the group is drawn as slices of a circle.
  bool IsRound() const {
    return family == Family::kPie || family == Family::kDoughnut || family == Family::kOfPie;
  }
  /// Returns whether Excel has error bars for the series.
  bool CanHaveErrorBars() const;
  /// Returns whether Excel has trendlines for the series, which it hasn't for piles.
  bool CanHaveTrendlines() const { return CanHaveErrorBars() && !IsStacked(); }
  /// Returns whether points lie at X values instead of categories.
  bool HasXValues() const { return family == Family::kScatter || family == Family::kBubble; }
  /// Returns the number of points of the longest series.
  std::size_t PointCount() const;
};

/// What lies along an axis.
enum class AxisKind : std::uint8_t { kCategory, kDate, kValue, kSeries };
/// A side of a rectangle.
enum class Side : std::uint8_t { kLeft, kRight, kTop, kBottom };

/// The unit in which an axis shows its values (c:dispUnits).
struct DisplayUnits {
  double factor = 1;                ///< values are divided by it
  std::optional<TitleModel> label;  ///< names the unit beside the axis
};

/// An axis.
struct AxisModel {
  pugi::xml_node node;  ///< c:catAx and the like
  int number = 1;       ///< place in the chart part, from 1
  AxisKind kind = AxisKind::kCategory;
  Side side = Side::kBottom;  ///< of the plot area, as the file says; decides the direction of the axis
  bool hidden = false;
  bool reversed = false;
  std::optional<double> logBase;      ///< of a logarithmic scale
  xlsx::AxisScale scale;              ///< minimum, maximum and major unit of an axis of values
  xlsx::AxisSettings settings;        ///< the parts of the scale that a person set
  xlsx::DataExtent extent;            ///< of the data along an axis of values
  std::optional<double> minorUnit;    ///< nothing if it is automatic
  FormatPointer format;               ///< of the tick labels
  std::string tickLabels = "nextTo";  ///< of ST_TickLblPos
  std::string majorTicks = "out", minorTicks = "none";  ///< of ST_TickMark
  Stroke line;
  std::optional<Stroke> majorGridlines, minorGridlines;
  std::optional<TitleModel> title;
  TextStyle text;
  int crossed = -1;  ///< index into ChartModel::axes of the axis that it crosses; -1 if there is none
  std::string crosses = "autoZero";  ///< of ST_Crosses
  std::optional<double> crossesAt;   ///< value or category from 1 where it crosses that axis
  bool crossesBetween = true;  ///< the axis of values crosses this one between categories, not on a category
  long long labelSkip = 0,
            tickSkip = 1;  ///< categories from one label or mark to the next; 0: automatic
  DisplayUnits units;
  std::vector<std::string> categories;     ///< of the group that has most of them
  std::vector<CategoryLevel> outerLevels;  ///< from the innermost to the outermost
  std::optional<DateSlots> dates;          ///< of an axis of dates if its categories are dates

  /// Returns whether the axis is vertical.
  bool IsUpright() const { return side == Side::kLeft || side == Side::kRight; }
  /// Returns the number of categories along the axis, or of days, months or years; at least 1.
  double SlotCount() const;
  /// Returns the X values at the ends of the axis, as AxisMap::OfX takes them.
  std::pair<double, double> EndsOfX() const;
  /// Returns whether values lie along the axis.
  bool IsOfValues() const { return kind == AxisKind::kValue; }
};

/// An entry of the legend.
struct LegendEntry {
  std::string text;
  TextStyle style;
  int series = 0, point = 0;  ///< from 1; point is 0 in the entry of a series
  int trendline = 0;          ///< the trendline of the series, from 1; 0 for other entries
  int band = 0;               ///< the band of the surface, from 1; 0 for other entries
};
/// The legend.
struct LegendModel {
  std::string position = "r";  ///< of ST_LegendPos
  bool overlay = false;        ///< it takes no room from the plot area
  std::optional<ManualLayout> layout;
  ShapeStyle style;
  TextStyle text;
  std::vector<LegendEntry> entries;

  /// Returns whether the legend is above or below the plot area, with its entries side by side.
  bool IsFlat() const { return position == "t" || position == "b"; }
};

/// A table of the values below the plot area (c:dTable).
struct DataTable {
  int axis = 0;  ///< index of the axis of categories that it is below
  bool horizontalLines = false, verticalLines = false, outline = false;
  bool keys = false;       ///< legend keys beside the names of the series
  std::string tickLabels;  ///< AxisModel::tickLabels and crossesBetween of the axis without the table
  bool crossesBetween = false;
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
  std::vector<GroupModel> groups;      ///< groups that have series, in the order of drawing
  std::vector<AxisModel> axes;
  std::vector<AxisModel> spokes;  ///< axes of a radar chart, which DrawRadar draws
  std::string blanks = "gap";     ///< of ST_DispBlanksAs
  xlsx::DateSystem dates = xlsx::DateSystem::k1900;

  /// Returns whether any group is drawn in 3-D.
  bool Is3D() const;
  /// Returns whether all groups are pies or doughnuts.
  bool IsRound() const;
  /// Returns the series with a number, from 1 in plot order, or null if there is none.
  const SeriesModel* FindSeries(int number) const;
  /// Returns the group of a series by its number, or null if there is none.
  const GroupModel* GroupOfSeries(int number) const;
};

}  // namespace plotsmith::render

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

/// The fill, the outline and the shadow of an element.
struct ShapeStyle {
  /// The fill. It is std::monostate if there is none.
  Fill fill;
  /// The outline, whose width is 0 if there is none.
  Stroke stroke;
  /// The outer shadow. It is absent if the element has none.
  std::optional<Shadow> shadow = {};
};

/// A layout that the user set (c:manualLayout), in fractions of the chart's width and height. A missing value
/// is automatic.
struct ManualLayout {
  /// Whether the layout of a plot area is that of the rectangle between the axes, without tick labels.
  bool inner = false;
  /// The left and the top edge, or the distances from the automatic position.
  std::optional<double> x, y;
  /// The extents, or the right and the bottom edge.
  std::optional<double> width, height;
  /// Whether `x` and `y` are edges. Otherwise they are distances.
  bool xIsEdge = false, yIsEdge = false;
  /// Whether `width` and `height` are edges. Otherwise they are extents.
  bool widthIsEdge = false, heightIsEdge = false;
};

/// The title of a chart or of an axis, or the label of display units.
struct TitleModel {
  /// The text, with a paragraph for each line.
  RichText text;
  /// The look of the box around the text.
  ShapeStyle style;
  /// The layout that the user set. It is absent if the layout is automatic.
  std::optional<ManualLayout> layout;
  /// Whether the title takes no space from the plot area.
  bool overlay = false;
};

/// A number format.
using FormatPointer = std::shared_ptr<const xlsx::NumberFormat>;

/// What the data label of a point shows, and how it looks.
struct LabelModel {
  /// The parts of the text.
  bool showsValue = false, showsPercent = false, showsCategory = false, showsSeries = false;
  /// The size of the bubble as a part of the text, and the legend key before the text.
  bool showsBubbleSize = false, showsKey = false;
  /// The text between two parts. If it is absent, the text is ", ".
  std::optional<std::string> separator;
  /// The position, as a value of ST_DLblPos. It is never empty.
  std::string position;
  /// The format of the value, or of the percentage if there is no value. Null means the format of the data.
  FormatPointer format;
  /// The format of the automatic text.
  TextStyle text;
  /// The look of the box around the text.
  ShapeStyle style;
  /// The text that the user typed, which replaces all other parts. It is empty if there is none.
  RichText own;
  /// The layout that the user set. It is absent if the layout is automatic.
  std::optional<ManualLayout> layout;

  /// Returns true if the label shows any text.
  bool ShowsAnything() const;
};
/// The data labels of a series.
struct LabelsModel {
  /// The label of all points that have no label of their own.
  LabelModel common;
  /// The labels that differ from `common`, by the index of the point from 0.
  std::map<std::size_t, LabelModel> points;
  /// The indices, from 0, of points without a label.
  std::set<std::size_t> deleted;
  /// Whether lines connect labels that were moved with their points.
  bool leaderLines = false;
  /// The look of leader lines.
  Stroke leaderStroke;

  /// Returns the label of a point by its index, from 0, or null if the point has none.
  const LabelModel* Of(std::size_t point) const;
};

/// The marker of a point of a line.
struct MarkerModel {
  /// A value of ST_MarkerStyle except "auto". It is "none" if there is no marker.
  std::string symbol;
  /// The edge length of the square around the marker, in points.
  double size = 7;
  /// The look of the symbol.
  ShapeStyle style;
};

/// The look of a point that differs from its series.
struct PointModel {
  /// The look of the bar, the slice, the bubble, or the line that ends at the point.
  ShapeStyle style;
  /// The marker. It is absent if the point has the marker of the series.
  std::optional<MarkerModel> marker;
  /// The distance of a slice from the middle, in percent of the radius. It is absent if the point has that of
  /// the series.
  std::optional<double> explosion;
  /// Whether the fill is inverted below zero. It is absent if the series decides.
  std::optional<bool> invertIfNegative;
};

/// A trendline of a series (c:trendline).
struct Trendline {
  /// The kind of the curve.
  TrendKind kind = TrendKind::kLinear;
  /// The number of points in a moving average.
  std::size_t period = 2;
  /// The name, as the legend shows it.
  std::string name;
  /// The extensions beyond the last and the first point, in X units.
  double forward = 0, backward = 0;
  /// The number that is subtracted from an X value to get the argument of AxisMap::OfX.
  double shift = 0;
  /// The curve. It is absent for a moving average, and if no curve could be fitted.
  std::optional<TrendCurve> curve;
  /// The X values of the ends of the curve, with its extensions.
  double from = 0, to = 0;
  /// Whether the axes show a part of the line. Otherwise it isn't drawn, and the legend has no entry for it.
  bool isVisible = false;
  /// The X values and the values of a moving average.
  std::vector<Point> points;
  /// The look of the line.
  ShapeStyle style;
  /// The equation and R squared. It is empty if the trendline has no label.
  RichText label;
  /// The look of the box around the label.
  ShapeStyle labelStyle;
  /// The layout that the user set for the label. It is absent if the layout is automatic.
  std::optional<ManualLayout> labelLayout;
};

struct AxisModel;
/// Returns the first and the last X value at which the curve of a trendline is visible. `axis` is the axis of
/// X values, or null. The first X value is above zero if the curve or the axis requires that. Returns nothing
/// if the axis shows no part of the curve.
std::optional<std::pair<double, double>> SeenPart(const Trendline& line, const AxisModel* axis);
/// Returns the X values at which the visible part of the curve of a trendline is drawn, in ascending order.
/// `axis` is the axis of X values.
std::vector<double> SamplesOf(const Trendline& line, const AxisModel& axis);

/// A series.
struct SeriesModel {
  /// The element c:ser.
  pugi::xml_node node;
  /// The number in plot order, from 1.
  int number = 1;
  /// The name, as the legend shows it.
  std::string name;
  /// The values of the points. NaN is a point without a value.
  std::vector<double> values;
  /// The points with the value #N/A that lines and areas pass over, by index from 0. The setting to draw them
  /// as blank cells leaves this empty.
  std::set<std::size_t> bridged;
  /// The X values of a scatter or bubble chart. They are 1, 2, 3, ... if the file has texts instead.
  std::vector<double> x;
  /// The sizes of bubbles.
  std::vector<double> sizes;
  /// The formats of the values and of the bubble sizes.
  FormatPointer valueFormat, sizeFormat;
  /// The style of bars, areas, bubbles and slices. Lines use its stroke.
  ShapeStyle style;
  /// The marker of all points that have none of their own.
  MarkerModel marker;
  /// Whether the line is a smooth curve.
  bool smooth = false;
  /// Whether the fill is inverted below zero.
  bool invertIfNegative = false;
  /// The fill that replaces an inverted solid fill.
  Fill invertedFill;
  /// Whether bubbles look like balls.
  bool bubble3D = false;
  /// The distance of the slices from the middle, in percent of the radius.
  double explosion = 0;
  /// The points in the second plot of a pie of pie or bar of pie, by index from 0. If there are any, the last
  /// value of the series is that of the point "Other", which replaces them in the first plot.
  std::set<std::size_t> secondPlot;
  /// The looks of points in varied colours, which are used in rotation. It is empty if the colours aren't
  /// varied.
  std::vector<PointModel> palette;
  /// The looks of points that differ from the series, by index from 0.
  std::map<std::size_t, PointModel> points;
  /// The data labels of the series and of its points.
  LabelsModel labels;
  /// The error bars, at most one entry for each direction.
  std::vector<ErrorBars> errorBars;
  /// The trendlines, in the order of the file.
  std::vector<Trendline> trendlines;

  /// Returns the style of a point by its index, from 0.
  const ShapeStyle& StyleOf(std::size_t point) const;
  /// Returns the style of a point by its index, from 0. The fill may be inverted if `value`, which is the
  /// value or the bubble size, is below zero.
  ShapeStyle StyleOf(std::size_t point, double value) const;
  /// Returns true if the fill of a point with this value is inverted.
  bool IsInverted(std::size_t point, double value) const;
  /// Returns the marker of a point by its index, from 0.
  const MarkerModel& MarkerOf(std::size_t point) const;
  /// Returns true if the series or one of its points has a shadow.
  bool HasShadows() const;
};

/// Bars from the first series of a group of lines to the last one.
struct UpDownBars {
  /// The gap between two bars, in percent of the width of a bar.
  double gapWidth = 150;
  /// The styles of the bars where the last series is above the first one, and where it is below.
  ShapeStyle up, down;
};

/// Neighbouring categories that have one text in common, on an outer level.
struct CategoryGroup {
  /// The index of the first category, from 0, and the index after the last one.
  std::size_t first = 0, end = 0;
  /// The text that the categories have in common.
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
/// How the values of the series in a group are arranged in a category.
enum class Grouping : std::uint8_t { kStandard, kClustered, kStacked, kPercent };

/// A band of values on a surface, which has a colour of its own.
struct SurfaceBand {
  /// The lower and the upper limit of the values.
  double from = 0, to = 0;
  /// The style. A wireframe uses only its stroke.
  ShapeStyle style;
};

/// A plot group: series that are drawn in the same way on the same axes.
struct GroupModel {
  /// The element, such as c:barChart.
  pugi::xml_node node;
  /// The family of charts, which decides how the series are drawn.
  Family family = Family::kBar;
  /// How the values of the series are arranged in a category.
  Grouping grouping = Grouping::kStandard;
  /// Whether the group is drawn in 3-D.
  bool is3D = false;
  /// Whether bars are horizontal.
  bool horizontal = false;
  /// Whether a radar chart is drawn as areas.
  bool filled = false;
  /// Whether the points of a series have different colours.
  bool varyColors = false;
  /// Whether a scatter chart has no lines.
  bool markersOnly = false;
  /// The gap between clusters and the overlap of bars, in percent of the width of a bar. The gap between the
  /// two plots of a pie of pie is in percent of their mean radius.
  double gapWidth = 150, overlap = 0;
  /// Whether the second plot of a pie of pie is a bar.
  bool isBarOfPie = false;
  /// The height of the second plot of a pie of pie, in percent of the first one.
  double secondPlotSize = 75;
  /// The angle at which the first slice begins, in degrees clockwise from twelve o'clock.
  double firstSliceAngle = 0;
  /// The diameter of the hole of a doughnut, in percent of the diameter of the doughnut.
  double holeSize = 10;
  /// The size of bubbles in percent of the default.
  double bubbleScale = 100;
  /// Whether bubbles with a size below zero are drawn.
  bool showNegativeBubbles = false;
  /// Whether the size of a bubble determines its width. Otherwise the size determines its area.
  bool sizeIsWidth = false;
  /// The lines from points to the category axis, and the lines from the highest to the lowest point of each
  /// category. They are absent if the group has none.
  std::optional<Stroke> dropLines, highLowLines;
  /// The lines between stacked bars, or between the two plots of a pie of pie. They are absent if the group
  /// has none.
  std::optional<Stroke> seriesLines;
  /// The up/down bars. They are absent if the group has none.
  std::optional<UpDownBars> upDownBars;
  /// Whether a surface consists of lines.
  bool wireframe = false;
  /// Whether a surface is seen from above.
  bool isContour = false;
  /// The bands of a surface, from the lowest to the highest.
  std::vector<SurfaceBand> bands;
  /// The series in plot order.
  std::vector<SeriesModel> series;
  /// The texts of the tick labels, at least one for each point.
  std::vector<std::string> categories;
  /// The outer levels of the categories, from the innermost to the outermost.
  std::vector<CategoryLevel> outerLevels;
  /// Indices into ChartModel::axes. They are -1 if the group has no such axis. `category` is the axis of the
  /// X values of a scatter or bubble chart.
  int category = -1, value = -1, depth = -1;

  /// Returns true if the values of series are added up.
  bool IsStacked() const { return grouping == Grouping::kStacked || grouping == Grouping::kPercent; }
  /// Returns true if the group is drawn as slices of a circle.
  bool IsRound() const {
    return family == Family::kPie || family == Family::kDoughnut || family == Family::kOfPie;
  }
  /// Returns true if the series of this kind of group can have error bars in Excel.
  bool CanHaveErrorBars() const;
  /// Returns true if the series of this kind of group can have trendlines in Excel. Stacked series can't.
  bool CanHaveTrendlines() const { return CanHaveErrorBars() && !IsStacked(); }
  /// Returns true if points lie at X values instead of categories.
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
  /// The number by which values are divided.
  double factor = 1;
  /// The name of the unit beside the axis. It is absent if it isn't shown.
  std::optional<TitleModel> label;
};

/// An axis.
struct AxisModel {
  /// The element, such as c:catAx.
  pugi::xml_node node;
  /// The number in the chart part, from 1.
  int number = 1;
  /// What the axis shows: categories, dates, values or series.
  AxisKind kind = AxisKind::kCategory;
  /// The side of the plot area that the file gives. It decides whether the axis is vertical.
  Side side = Side::kBottom;
  /// Whether the axis isn't drawn.
  bool hidden = false;
  /// Whether the axis runs backwards.
  bool reversed = false;
  /// The base of a logarithmic scale. It is absent for a linear scale.
  std::optional<double> logBase;
  /// The minimum, the maximum and the major unit of a value axis.
  xlsx::AxisScale scale;
  /// The parts of the scale that the user set.
  xlsx::AxisSettings settings;
  /// The extent of the data along a value axis.
  xlsx::DataExtent extent;
  /// The minor unit. It is absent if it is automatic.
  std::optional<double> minorUnit;
  /// The format of the tick labels.
  FormatPointer format;
  /// The position of the tick labels, as a value of ST_TickLblPos.
  std::string tickLabels = "nextTo";
  /// The tick marks, as values of ST_TickMark.
  std::string majorTicks = "out", minorTicks = "none";
  /// The line of the axis and of its tick marks.
  Stroke line;
  /// The gridlines. They are absent if the axis has none.
  std::optional<Stroke> majorGridlines, minorGridlines;
  /// The title. It is absent if the axis has none.
  std::optional<TitleModel> title;
  /// The style of the tick labels.
  TextStyle text;
  /// The index into ChartModel::axes of the axis that this one crosses, or -1 if there is none.
  int crossed = -1;
  /// Where this axis crosses the axis `crossed`, as a value of ST_Crosses. It has no effect if `crossesAt` is
  /// set.
  std::string crosses = "autoZero";
  /// The value or the category, from 1, at which this axis crosses the other one. It is absent if `crosses`
  /// applies.
  std::optional<double> crossesAt;
  /// Whether the value axis crosses this one between two categories. Otherwise it crosses on a category.
  bool crossesBetween = true;
  /// The numbers of categories from one label to the next, and from one tick mark to the next. 0 means
  /// automatic.
  long long labelSkip = 0, tickSkip = 1;
  /// The display units of a value axis.
  DisplayUnits units;
  /// The categories of the group with the most categories.
  std::vector<std::string> categories;
  /// The outer levels of the categories, from the innermost to the outermost.
  std::vector<CategoryLevel> outerLevels;
  /// The positions of the categories on a date axis. It is absent if the categories aren't dates.
  std::optional<DateSlots> dates;

  /// Returns true if the axis is vertical.
  bool IsUpright() const { return side == Side::kLeft || side == Side::kRight; }
  /// Returns false if a category, which counts from 0, is outside of the dates that the axis shows.
  bool Shows(std::size_t category) const;
  /// Returns the number of categories along the axis, or of days, months or years; at least 1.
  double SlotCount() const;
  /// Returns the X values at the ends of the axis, as AxisMap::OfX takes them.
  std::pair<double, double> EndsOfX() const;
  /// Returns true if a value has a position along the axis: it is finite, and above zero on a logarithmic
  /// scale.
  bool HasPositionOf(double value) const;
  /// Returns true if values lie along the axis.
  bool IsOfValues() const { return kind == AxisKind::kValue; }
};

/// An entry of the legend.
struct LegendEntry {
  /// The name of a series, or the text of a category, a band or a trendline.
  std::string text;
  /// The format of the text.
  TextStyle style;
  /// The number of the series and of the point, from 1. The point is 0 in the entry of a series.
  int series = 0, point = 0;
  /// The number of the trendline of the series, from 1. It is 0 in other entries.
  int trendline = 0;
  /// The number of the band of a surface, from 1. It is 0 in other entries.
  int band = 0;
};
/// The legend.
struct LegendModel {
  /// The position, as a value of ST_LegendPos.
  std::string position = "r";
  /// Whether the legend takes no space from the plot area.
  bool overlay = false;
  /// The layout that the user set. It is absent if the layout is automatic.
  std::optional<ManualLayout> layout;
  /// The look of the box around the entries.
  ShapeStyle style;
  /// The format of all entries that have none of their own.
  TextStyle text;
  /// The entries, in the order in which they are shown.
  std::vector<LegendEntry> entries;

  /// Returns true if the legend is above or below the plot area, with its entries side by side.
  bool IsFlat() const { return position == "t" || position == "b"; }
};

/// A table of the values below the plot area (c:dTable).
struct DataTable {
  /// The index into ChartModel::axes of the category axis above the table.
  int axis = 0;
  /// The lines that are drawn.
  bool horizontalLines = false, verticalLines = false, outline = false;
  /// Whether the table shows legend keys beside the names of the series.
  bool keys = false;
  /// The value for AxisModel::tickLabels of the axis if the table can't be drawn.
  std::string tickLabels;
  /// The value for AxisModel::crossesBetween of the axis if the table can't be drawn.
  bool crossesBetween = false;
  /// The lines of the table.
  Stroke stroke;
  /// The format of all texts in the table.
  TextStyle text;
};

/// A chart. The title, legend and data table are absent if the chart has none.
struct ChartModel {
  /// The look of the background of the chart, and of the rectangle between the axes.
  ShapeStyle chartArea, plotArea;
  /// Whether the corners of the chart area are rounded.
  bool roundedCorners = false;
  /// The title, with the automatic text if the file gives none.
  std::optional<TitleModel> title;
  /// The legend, without the entries that the file deletes.
  std::optional<LegendModel> legend;
  /// The table of the values.
  std::optional<DataTable> table;
  /// The layout of the plot area. It is absent if the layout is automatic.
  std::optional<ManualLayout> layout;
  /// The groups that have series, in the order in which they are drawn.
  std::vector<GroupModel> groups;
  /// The axes. They are hidden if all groups are radar charts, or if there is no group.
  std::vector<AxisModel> axes;
  /// A copy of the axes for DrawRadar. It is empty if the chart has no radar group.
  std::vector<AxisModel> spokes;
  /// How points without a value are drawn, as a value of ST_DispBlanksAs.
  std::string blanks = "gap";
  /// The date system of the workbook.
  xlsx::DateSystem dates = xlsx::DateSystem::k1900;

  /// Returns true if any group is drawn in 3-D.
  bool Is3D() const;
  /// Returns true if all groups are pies or doughnuts.
  bool IsRound() const;
  /// Returns the series with a number, from 1 in plot order, or null if there is none.
  const SeriesModel* FindSeries(int number) const;
  /// Returns the group of a series by its number, or null if there is none.
  const GroupModel* GroupOfSeries(int number) const;
};

}  // namespace plotsmith::render

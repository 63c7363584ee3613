#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "render/Notes.h"
#include "render/model/ChartModel.h"
#include "render/model/StyleReader.h"

namespace plotsmith::render {

/// The maximum number of points that are drawn, per series and per chart. Points with texts count too. Excel
/// 2007 and older versions draw at most 32,000 and 256,000.
inline constexpr std::size_t kMostPoints = 100'000, kMostPointsOfAll = 2'000'000;

/// The common state of the functions that read a chart.
struct ReadingContext {
  /// The chart part, which is only read.
  xlsx::ChartPart& part;
  /// Receives a sentence for each setting that isn't drawn.
  Notes& notes;
  /// The automatic looks of elements without a format.
  AutomaticStyles styles;
  /// The formats that were parsed so far, by their codes.
  std::map<std::string, FormatPointer> formats = {};
  /// The number of points that may still be read.
  std::size_t pointsLeft = kMostPointsOfAll;
  /// Whether points with the value #N/A are drawn as points of blank cells.
  bool isUnavailableBlank = false;

  /// Makes a context. `chart` and `sentences` must outlive it.
  ReadingContext(xlsx::ChartPart& chart, Notes& sentences) : part(chart), notes(sentences), styles(chart) {}
  /// Returns the format of a code, or General if Excel refuses the code. The result is never null.
  FormatPointer Format(const std::string& code);
};

/// Reads a chart. Adds a sentence to `notes` about everything that is left out. Raises error 1004 if the
/// chart can't be read.
ChartModel ReadChart(xlsx::ChartPart& part, Notes& notes);

/// Reads a plot group (c:barChart and the like) with its series, but without its axes. `numbers` has the
/// numbers of the series in plot order, from 1.
GroupModel ReadGroup(ReadingContext& context, pugi::xml_node group,
                     const std::map<pugi::xml_node, int>& numbers);
/// Reads the labels of a series. Labels without a position of their own have `position` (ST_DLblPos).
LabelsModel ReadLabels(ReadingContext& context, pugi::xml_node series, const std::string& position);
/// Reads an axis without its scale and its categories.
AxisModel ReadAxis(ReadingContext& context, pugi::xml_node axis);
/// Reads a title element. Its text is `automatic` if it has none.
TitleModel ReadTitle(ReadingContext& context, pugi::xml_node title, xlsx::TextRole role,
                     const std::string& automatic);
/// Reads the legend. Returns nothing if the chart has none.
std::optional<LegendModel> ReadLegend(ReadingContext& context);
/// Reads the error bars, trendlines and up/down bars of all groups. The axes must already be read. Category
/// axes are extended for trendlines.
void ReadAnalysis(ReadingContext& context, ChartModel& chart);
/// Reads the data table of a plot area, which replaces the tick labels of its axis.
void ReadDataTable(ReadingContext& context, pugi::xml_node plotArea, ChartModel& chart);
/// Reads the bands of surfaces, whose axes must be scaled.
void ReadSurfaces(ReadingContext& context, ChartModel& chart);
/// Adds error bars and extended trendlines to the extent of the data along an axis. The axis of X values must
/// be scaled before the value axis.
void AddAnalysisExtent(const ChartModel& chart, const GroupModel& group, bool isX, xlsx::DataExtent& extent);
/// Sets Trendline::isVisible of all trendlines. All axes must be scaled.
void FindVisibleTrendlines(ChartModel& chart);
/// Adds the entries of visible trendlines to the legend.
void AddTrendlineEntries(ReadingContext& context, ChartModel& chart);
/// Replaces the entries of the legend by those of the bands, if the chart has surfaces.
void AddBandEntries(ReadingContext& context, ChartModel& chart);
/// Reads the dates of the categories of a group (c:cat) and sets `axis.dates`. If the categories aren't
/// dates, the axis doesn't change.
void ReadDates(ReadingContext& context, const GroupModel& group, AxisModel& axis);

/// Reads the numbers of a series (c:val, c:xVal and the like), one for each point. A missing number is NaN.
/// If `unavailable` isn't null, it receives the indices, from 0, of the points with #N/A.
std::vector<double> ReadNumbers(ReadingContext& context, pugi::xml_node data,
                                std::set<std::size_t>* unavailable = nullptr);
/// Reads the outer levels of the categories. `categories` is the number of categories. The result is empty if
/// there is only one level.
std::vector<CategoryLevel> ReadOuterLevels(pugi::xml_node data, std::size_t categories);
/// Reads the texts of categories (c:cat), one for each point. If there are several levels, the
/// result has the texts of the innermost one.
std::vector<std::string> ReadCategories(ReadingContext& context, pugi::xml_node data);

}  // namespace plotsmith::render

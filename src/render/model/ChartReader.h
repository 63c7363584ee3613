#pragma once

#include <map>
#include <string>
#include <vector>

#include "render/Notes.h"
#include "render/model/ChartModel.h"
#include "render/model/StyleReader.h"

namespace plotsmith::render {

/// The most points that are drawn of one series, and of all series of a chart. Numbers and texts count alike.
/// Excel 2007 and older draw at most 32,000 and 256,000.
inline constexpr std::size_t kMostPoints = 100'000, kMostPointsOfAll = 2'000'000;
/// The most entries that are read of a legend.
inline constexpr std::size_t kMostLegendEntries = 2000;

/// What the functions share that read a chart.
struct ReadingContext {
  xlsx::ChartPart& part;
  Notes& notes;
  AutomaticStyles styles;
  std::map<std::string, FormatPointer> formats = {};
  std::size_t pointsLeft = kMostPointsOfAll;  ///< that may still be read

  /// The chart and the sentences must outlive the context.
  ReadingContext(xlsx::ChartPart& chart, Notes& sentences) : part(chart), notes(sentences), styles(chart) {}
  /// Returns the format of a code, and General for a code that Excel refuses. Never null.
  FormatPointer Format(const std::string& code);
};

/// Reads a chart. What is left out is added to `notes`. Raises error 1004 if the chart can't be read.
ChartModel ReadChart(xlsx::ChartPart& part, Notes& notes);

// ReadChart calls the functions below.

/// Reads a plot group (c:barChart and the like) with its series, but without its axes. `numbers` has the
/// numbers of the series in plot order, from 1.
GroupModel ReadGroup(ReadingContext& context, pugi::xml_node group,
                     const std::map<pugi::xml_node, int>& numbers);
/// Returns whether an element is a plot group of a known kind.
bool IsKnownGroup(pugi::xml_node group);
/// Reads the labels of a series. Labels without a position of their own have `position` (ST_DLblPos).
LabelsModel ReadLabels(ReadingContext& context, pugi::xml_node series, const std::string& position);
/// Reads an axis without its scale and its categories.
AxisModel ReadAxis(ReadingContext& context, pugi::xml_node axis);
/// Reads a title element. Its text is `automatic` if it has none.
TitleModel ReadTitle(ReadingContext& context, pugi::xml_node title, xlsx::TextRole role,
                     const std::string& automatic);
/// Reads the legend. Returns nothing if the chart has none.
std::optional<LegendModel> ReadLegend(ReadingContext& context);
/// Reads error bars, trendlines and up/down bars of groups whose axes are read. Axes of categories are
/// extended for trendlines.
void ReadAnalysis(ReadingContext& context, ChartModel& chart);
/// Reads the data table of a plot area, and makes room for it in place of tick labels.
void ReadDataTable(ReadingContext& context, pugi::xml_node plotArea, ChartModel& chart);
/// Reads the bands of surfaces, whose axes must be scaled.
void ReadSurfaces(ReadingContext& context, ChartModel& chart);
/// Adds what error bars and extended trendlines need of an axis. The axis of X values must be scaled before
/// that of values.
void AddAnalysisExtent(const ChartModel& chart, const GroupModel& group, bool isX, xlsx::DataExtent& extent);
/// Adds the entries of trendlines to the legend.
void AddTrendlineEntries(ReadingContext& context, ChartModel& chart);
/// Replaces the entries of the legend by those of the bands, if the chart has surfaces.
void AddBandEntries(ReadingContext& context, ChartModel& chart);
/// Lays the categories of an axis of dates (c:cat) out by their dates; leaves it as one of categories where
/// they are none.
void ReadDates(ReadingContext& context, pugi::xml_node categories, AxisModel& axis);

/// Reads the numbers of a series' data (c:val, c:xVal and the like): one for each point, and NaN for a
/// missing one.
std::vector<double> ReadNumbers(ReadingContext& context, pugi::xml_node data);
/// Reads the outer levels of `categories` categories. Returns none if there is only one level.
std::vector<CategoryLevel> ReadOuterLevels(pugi::xml_node data, std::size_t categories);
/// Reads the texts of categories (c:cat), one for each point. If there are several levels, they are those of
/// the innermost.
std::vector<std::string> ReadCategories(ReadingContext& context, pugi::xml_node data);

}  // namespace plotsmith::render

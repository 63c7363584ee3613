#pragma once

#include <map>
#include <string>
#include <vector>

#include "render/ChartDrawing.h"
#include "render/model/ChartModel.h"
#include "render/model/StyleReader.h"

namespace plotsmith::render {

/// Points of one series, and of all series of a chart, that are drawn. Excel's own limits were 32,000 and
/// 256,000 for long. Numbers and texts count alike.
inline constexpr std::size_t kMostPoints = 100'000, kMostPointsOfAll = 2'000'000;

/// What the readers of a chart's parts share.
struct ReadingContext {
  xlsx::ChartPart& part;
  Notes& notes;
  AutomaticStyles styles;
  std::map<std::string, FormatPointer> formats = {};
  std::size_t pointsLeft = kMostPointsOfAll;

  ReadingContext(xlsx::ChartPart& chart, Notes& sentences) : part(chart), notes(sentences), styles(chart) {}
  /// The format of a code; General for a code that Excel refuses.
  FormatPointer Format(const std::string& code);
};

/// Reads all of a chart that is drawn. Error 1004 for one that can't be read.
ChartModel ReadChart(xlsx::ChartPart& part, Notes& notes);

// The parts of it.

/// A plot group (c:barChart and the like) with its series; its axes are left open. `numbers` has the places
/// of the series in plot order, from 1.
GroupModel ReadGroup(ReadingContext& context, pugi::xml_node group,
                     const std::map<pugi::xml_node, int>& numbers);
/// Whether the element is a group of a kind that is known.
bool IsKnownGroup(pugi::xml_node group);
/// The labels of a series; `position` is where those stand that don't say it.
LabelsModel ReadLabels(ReadingContext& context, pugi::xml_node series, const std::string& position);
/// An axis but for its scale and its categories.
AxisModel ReadAxis(ReadingContext& context, pugi::xml_node axis);
/// A title element; `automatic` is its text where it has none of its own.
TitleModel ReadTitle(ReadingContext& context, pugi::xml_node title, xlsx::TextRole role,
                     const std::string& automatic);
std::optional<LegendModel> ReadLegend(ReadingContext& context);
/// Reads error bars, trendlines and up/down bars of groups whose axes are read. Axes of categories are
/// extended for trendlines.
void ReadAnalysis(ReadingContext& context, ChartModel& chart);
/// Reads the data table of a plot area, and makes room for it in place of tick labels.
void ReadDataTable(ReadingContext& context, pugi::xml_node plotArea, ChartModel& chart);
/// Reads surfaces, whose axes are scaled, and gives their bands to the legend.
void ReadSurfaces(ReadingContext& context, ChartModel& chart);
/// Adds what error bars and extended trendlines need of an axis.
void AddAnalysisExtent(const GroupModel& group, bool isX, xlsx::DataExtent& extent);
/// Adds the entries of trendlines to the legend.
void AddTrendlineEntries(ReadingContext& context, ChartModel& chart);
/// Lays the categories of an axis of dates (c:cat) out by their dates; leaves it as one of categories where
/// they are none.
void ReadDates(ReadingContext& context, pugi::xml_node categories, AxisModel& axis);
/// Scales the axes of values by the data of their groups.
void ScaleAxes(ChartModel& chart);
/// Gives an axis the next larger major unit of 1, 2, 5, 10, ...
void CoarsenScale(AxisModel& axis);

/// The numbers of a series' data (c:val, c:xVal, ...), one for each point, NaN where there is none.
std::vector<double> ReadNumbers(ReadingContext& context, pugi::xml_node data);
/// The levels beyond the innermost of categories that have several.
std::vector<CategoryLevel> ReadOuterLevels(pugi::xml_node data, std::size_t categories);
/// The texts of the categories, one for each point.
std::vector<std::string> ReadCategories(ReadingContext& context, pugi::xml_node data);

}  // namespace plotsmith::render

#include "render/model/ChartReader.h"

#include <algorithm>
#include <utility>

#include "render/model/AxisScaling.h"
#include "xlsx/book/BookContext.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/ChartText.h"
#include "xlsx/chart/rules/GroupAxes.h"
#include "xlsx/chart/rules/PlotGroups.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {

namespace schema = xlsx::schema;
namespace xml = xlsx::xml;

namespace {

std::vector<AxisModel> ReadAxes(ReadingContext& context, pugi::xml_node plotArea) {
  constexpr std::size_t kMostAxes = 16;  // Excel has four, and a fifth for the depth.
  std::vector<AxisModel> axes;
  for (const pugi::xml_node& node : plotArea.children()) {
    if (!schema::IsAxis(node) || axes.size() == kMostAxes) continue;
    axes.push_back(ReadAxis(context, node));
    axes.back().number = static_cast<int>(axes.size());
  }
  return axes;
}

int IndexOf(const std::vector<AxisModel>& axes, pugi::xml_node node) {
  const auto found = std::find_if(axes.begin(), axes.end(),
                                  [&](const AxisModel& axis) { return node && axis.node == node; });
  return found == axes.end() ? -1 : static_cast<int>(found - axes.begin());
}

/// Makes the two axes of a group perpendicular if a file has them on the same or on opposite sides.
void LayAcross(const GroupModel& group, AxisModel& category, AxisModel& value) {
  if (category.IsUpright() != value.IsUpright()) return;
  category.side = group.horizontal ? Side::kLeft : Side::kBottom;
  value.side = group.horizontal ? Side::kBottom : Side::kLeft;
}

/// Gives an axis the categories of a group. If the axis shows no levels, the texts of all levels of a
/// category are joined. The text of a level is repeated for each of its categories, so the number of bytes is
/// limited.
void TakeCategories(const GroupModel& group, AxisModel& axis) {
  axis.categories = group.categories;
  axis.outerLevels = group.outerLevels;
  if (!schema::BooleanVal(axis.node, "noMultiLvlLbl", false)) return;
  std::size_t bytesLeft = 16 << 20;
  for (const CategoryLevel& level : std::exchange(axis.outerLevels, {})) {
    for (const CategoryGroup& one : level) {
      const std::size_t bytes = (one.text.size() + 1) * (one.end - one.first);
      if (bytes > bytesLeft) return;
      bytesLeft -= bytes;
      for (std::size_t i = one.first; i < one.end; ++i) axis.categories[i].insert(0, one.text + " ");
    }
  }
}

/// Sets the axes of a group, and gives them the categories and number formats of the group.
void Attach(ReadingContext& context, GroupModel& group, std::vector<AxisModel>& axes) {
  const xlsx::AxisRoles roles = xlsx::RolesOf(xlsx::AxesOf(group.node));
  group.category = IndexOf(axes, group.HasXValues() && roles.x ? roles.x : roles.category);
  group.value = IndexOf(axes, roles.value);
  group.depth = IndexOf(axes, roles.depth);
  const auto axisAt = [&](int index) { return index < 0 ? nullptr : &axes[static_cast<std::size_t>(index)]; };
  if (AxisModel* category = axisAt(group.category)) {
    if (category->categories.size() < group.categories.size()) TakeCategories(group, *category);
    if (!group.HasXValues()) {
      const std::string fallback(xlsx::CrossBetween(xml::LocalName(group.node)));
      category->crossesBetween = schema::Val(roles.value, "crossBetween", fallback) == "between";
    }
    if (category->kind == AxisKind::kDate && !category->dates && !group.HasXValues()) {
      ReadDates(context, group, *category);
    }
  }
  AxisModel* value = axisAt(group.value);
  if (value != nullptr && group.category >= 0) LayAcross(group, *axisAt(group.category), *value);
  if (value != nullptr && !value->format) {
    value->format =
        group.grouping == Grouping::kPercent ? context.Format("0%") : group.series.front().valueFormat;
  }
}

/// Makes a category axis a value axis if only X values are along it. If other groups have categories on it,
/// an X value is the number of a category.
void SettleXAxes(ReadingContext& context, ChartModel& chart) {
  for (const GroupModel& group : chart.groups) {
    if (!group.HasXValues() || group.category < 0) continue;
    AxisModel& axis = chart.axes[static_cast<std::size_t>(group.category)];
    const bool shared = std::any_of(chart.groups.begin(), chart.groups.end(), [&](const GroupModel& other) {
      return !other.HasXValues() && other.category == group.category;
    });
    if (!shared) axis.kind = AxisKind::kValue;
    if (!axis.IsOfValues() || axis.format) continue;
    const auto x = xml::Child(group.series.front().node, "xVal");
    axis.format = context.Format(xml::Text(xml::Child(x, "numRef", "numCache", "formatCode")));
  }
}

void ReadGroups(ReadingContext& context, ChartModel& chart) {
  std::map<pugi::xml_node, int> numbers;
  int number = 0;
  for (const xlsx::SeriesRef& series : context.part.Series()) numbers[series->node] = ++number;
  for (const pugi::xml_node& node : xlsx::DrawnGroups(context.part)) {
    GroupModel group = ReadGroup(context, node, numbers);
    if (group.series.empty()) continue;
    Attach(context, group, chart.axes);
    chart.groups.push_back(std::move(group));
  }
}

/// Returns true if the chart draws #N/A as a blank cell, which Excel 365 stores in an extension.
bool IsUnavailableBlank(pugi::xml_node chart) {
  const auto extensions = xml::Children(xml::Child(chart, "extLst"), "ext");
  return std::any_of(extensions.begin(), extensions.end(), [](const pugi::xml_node& extension) {
    const auto options = xml::Child(extension, "dataDisplayOptions16");
    return schema::BooleanVal(options, "dispNaAsBlank", false);
  });
}

}  // namespace

FormatPointer ReadingContext::Format(const std::string& code) {
  FormatPointer& format = formats[code];
  if (!format) format = xlsx::NumberFormat::Parse(code);
  if (!format) format = xlsx::NumberFormat::Parse("General");
  return format;
}

ChartModel ReadChart(xlsx::ChartPart& part, Notes& notes) {
  ReadingContext context(part, notes);
  const auto space = part.Space();
  const auto node = xml::Child(space, "chart");
  const auto plotArea = xml::Child(node, "plotArea");
  ChartModel chart;
  chart.dates = part.Book().Dates();
  chart.chartArea = ReadStyle(part, xml::Child(space, "spPr"), context.styles.ChartArea());
  chart.roundedCorners = schema::BooleanVal(space, "roundedCorners", false);
  // Excel always writes the element. If another program left it out, Excel draws gaps.
  chart.blanks = schema::Val(node, "dispBlanksAs", "gap");
  context.isUnavailableBlank = IsUnavailableBlank(node);
  chart.layout = ReadLayout(plotArea);
  chart.axes = ReadAxes(context, plotArea);
  ReadGroups(context, chart);
  SettleXAxes(context, chart);
  for (AxisModel& axis : chart.axes) {
    axis.crossed = IndexOf(chart.axes, xlsx::FindCrossedAxis(axis.node));
    if (!axis.format) axis.format = context.Format("General");
  }
  chart.plotArea = ReadStyle(part, xml::Child(plotArea, "spPr"),
                             context.styles.PlotArea(!chart.Is3D() && !chart.IsRound()));
  if (const auto title = xlsx::ShownTitle(part)) {
    chart.title = ReadTitle(context, xml::Child(node, "title"), xlsx::TextRole::kChartTitle, *title);
  }
  chart.legend = ReadLegend(context);
  ReadDataTable(context, plotArea, chart);
  ReadAnalysis(context, chart);
  ScaleAxes(chart);
  FindVisibleTrendlines(chart);
  AddTrendlineEntries(context, chart);
  ReadSurfaces(context, chart);
  AddBandEntries(context, chart);
  return chart;
}

}  // namespace plotsmith::render

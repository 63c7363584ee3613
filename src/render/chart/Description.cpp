#include "render/chart/Description.h"

#include <cmath>
#include <vector>

namespace plotsmith::render {
namespace {

/// The maximum number of points of all series together. More would take a screen reader too long.
constexpr std::size_t kMostDescribed = 200;

const char* KindName(const GroupModel& group) {
  switch (group.family) {
    case Family::kArea:
      return "Area chart";
    case Family::kBar:
      return group.horizontal ? "Bar chart" : "Column chart";
    case Family::kLine:
      return "Line chart";
    case Family::kPie:
      return "Pie chart";
    case Family::kOfPie:
      return group.isBarOfPie ? "Bar of pie chart" : "Pie of pie chart";
    case Family::kDoughnut:
      return "Doughnut chart";
    case Family::kScatter:
      return "Scatter chart";
    case Family::kBubble:
      return "Bubble chart";
    case Family::kStock:
      return "Stock chart";
    case Family::kRadar:
      return "Radar chart";
    case Family::kSurface:
      break;
  }
  return "Surface chart";
}

std::string Formatted(const FormatPointer& format, double value, xlsx::DateSystem dates) {
  std::string text;
  if (format) format->AppendNumber(text, value, dates);
  return text;
}

std::string PointText(const ChartModel& chart, const GroupModel& group, const SeriesModel& series,
                      std::size_t i) {
  std::string text;
  if (group.HasXValues()) {
    const AxisModel* axis =
        group.category < 0 ? nullptr : &chart.axes[static_cast<std::size_t>(group.category)];
    if (axis != nullptr && i < series.x.size()) text = Formatted(axis->format, series.x[i], chart.dates);
  } else if (i < group.categories.size()) {
    text = group.categories[i];
  }
  for (char& c : text) {
    if (c == '\n') c = ' ';
  }
  text += (text.empty() ? "" : " ") + Formatted(series.valueFormat, series.values[i], chart.dates);
  if (group.family == Family::kBubble && i < series.sizes.size() && std::isfinite(series.sizes[i])) {
    text += " (" + Formatted(series.sizeFormat, series.sizes[i], chart.dates) + ")";
  }
  return text;
}

std::string TextOf(const RichText& rich) {
  std::string text;
  for (const auto& runs : rich.paragraphs) {
    if (!text.empty()) text += ' ';
    for (const TextRun& run : runs) text += run.text;
  }
  return text;
}

/// Returns the indexes of the points with a value.
std::vector<std::size_t> DescribedPoints(const SeriesModel& series) {
  std::vector<std::size_t> points;
  const std::size_t others = series.secondPlot.empty() ? 0 : 1;  // the point "Other" repeats values
  for (std::size_t i = 0; i + others < series.values.size(); ++i) {
    if (std::isfinite(series.values[i])) points.push_back(i);
  }
  return points;
}

/// Returns the groups and series of a chart, one per line, with the values of the first points.
std::string ValuesOf(const ChartModel& chart) {
  std::string text;
  std::size_t left = kMostDescribed;
  for (const GroupModel& group : chart.groups) {
    text += std::string(text.empty() ? "" : "\n") + KindName(group) + ".";
    for (const SeriesModel& series : group.series) {
      const std::vector<std::size_t> points = DescribedPoints(series);
      if (left > 0 || points.empty()) text += "\n" + series.name + ":";
      const char* comma = " ";
      for (const std::size_t i : points) {
        if (left == 0) return text + "\nThere are more values.";
        --left;
        text += comma + PointText(chart, group, series, i);
        comma = ", ";
      }
    }
  }
  return text;
}

}  // namespace

void Describe(const ChartModel& chart, Drawing& drawing) {
  if (chart.title) drawing.title = TextOf(chart.title->text);
  if (drawing.title.empty() && !chart.groups.empty()) drawing.title = KindName(chart.groups.front());
  drawing.description = ValuesOf(chart);
}

}  // namespace plotsmith::render

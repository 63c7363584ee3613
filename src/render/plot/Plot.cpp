#include "render/plot/Plot.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "render/axes/AxisPlace.h"

namespace plotsmith::render {
namespace {

const AxisModel* AxisAt(const ChartModel& chart, int index) {
  return index < 0 ? nullptr : &chart.axes[static_cast<std::size_t>(index)];
}

}  // namespace

bool Plot::TakeSymbol() {
  if (symbolsLeft == 0) {
    canvas.Note("The chart has more markers or bubbles than are drawn; the rest is left out.");
    return false;
  }
  --symbolsLeft;
  return true;
}

bool Plot::Shows(const Rect& box) const {
  constexpr double kSlack = 0.5;  // points; a point that is this far outside is on the edge
  const auto isInside = [](double from, double to, double begin, double end) {
    const double visible = std::min(to, end) - std::max(from, begin);
    return visible > 0 || (to - from < kSlack && visible >= -kSlack);
  };
  return isInside(box.left, box.Right(), area.left, area.Right()) &&
         isInside(box.top, box.Bottom(), area.top, area.Bottom());
}

void Plot::Keep(const DrawnPoint& point) {
  if (point.series->labels.Of(point.index) != nullptr) points.push_back(point);
}

const AxisModel* Plot::CategoryAxisOf(const GroupModel& group) const { return AxisAt(chart, group.category); }

const AxisModel* Plot::ValueAxisOf(const GroupModel& group) const { return AxisAt(chart, group.value); }

double Plot::CrossingOf(const GroupModel& group) const {
  const AxisModel& values = *ValueAxisOf(group);
  return AxisMap::Along(values, area).OfValue(CrossingValue(values, *CategoryAxisOf(group)));
}

double Plot::BaseOf(const GroupModel& group) const {
  return group.IsStacked() ? AxisMap::Along(*ValueAxisOf(group), area).Base() : CrossingOf(group);
}

std::vector<double> PointTotals(const GroupModel& group) {
  std::vector<double> wholes(group.PointCount());
  for (const SeriesModel& series : group.series) {
    for (std::size_t i = 0; i < series.values.size(); ++i) {
      if (std::isfinite(series.values[i])) wholes[i] += std::abs(series.values[i]);
    }
  }
  return wholes;
}

Extents StackValues(const GroupModel& group) {
  constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
  Extents extents;
  const bool percent = group.grouping == Grouping::kPercent;
  const std::vector<double> wholes = percent ? PointTotals(group) : std::vector<double>();
  // Bars below zero are stacked downwards, while areas and lines show sums.
  const bool split = group.family == Family::kBar;
  std::vector<double> above(group.PointCount()), below(group.PointCount());
  for (const SeriesModel& series : group.series) {
    auto& from = extents.from.emplace_back(series.values.size(), kNothing);
    auto& to = extents.to.emplace_back(series.values.size(), kNothing);
    for (std::size_t i = 0; i < series.values.size(); ++i) {
      double value = series.values[i];
      if (!std::isfinite(value)) continue;
      if (percent) value = wholes[i] > 0 ? value / wholes[i] : 0;
      if (!group.IsStacked()) {
        from[i] = 0;
        to[i] = value;
        continue;
      }
      double& pile = split && value < 0 ? below[i] : above[i];
      from[i] = pile;
      pile += value;
      to[i] = pile;
    }
  }
  return extents;
}

}  // namespace plotsmith::render

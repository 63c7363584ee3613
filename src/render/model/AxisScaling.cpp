#include "render/model/AxisScaling.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <vector>

#include "render/model/ChartReader.h"
#include "xlsx/chart/rules/DataExtent.h"

namespace plotsmith::render {
namespace {

void AddGroup(const GroupModel& group, bool isX, xlsx::DataExtent& extent) {
  if (!isX && group.IsStacked()) {
    std::vector<std::span<const double>> series;
    for (const SeriesModel& each : group.series) series.emplace_back(each.values);
    return AddStacks(series, {group.family == Family::kBar, group.grouping == Grouping::kPercent}, extent);
  }
  for (const SeriesModel& series : group.series) {
    for (const double value : isX ? series.x : series.values) extent.Add(value);
  }
}

/// Corrects a scale that can't be drawn, which hostile files and extreme data can give.
void MakeSound(AxisModel& axis) {
  constexpr double kLargest = 8e307;  // a limit that keeps the difference of maximum and minimum finite
  constexpr double kMostSteps = 1e9;  // the number of steps up to which ticks are exact
  xlsx::AxisScale& scale = axis.scale;
  if (axis.logBase && !(scale.minimum > 0)) scale.minimum = scale.maximum > 1 ? 1 : scale.maximum / 10;
  if (axis.logBase && !(scale.minimum > 0)) scale = {1, *axis.logBase, *axis.logBase};
  if (!(scale.maximum > scale.minimum))
    scale.maximum = scale.minimum + std::max(std::abs(scale.minimum), 1.0);
  if (!std::isfinite(scale.maximum - scale.minimum)) {
    scale.minimum = std::max(scale.minimum, -kLargest);
    scale.maximum = std::min(scale.maximum, kLargest);
  }
  const double length = scale.maximum - scale.minimum;
  if (!std::isfinite(length)) scale = {0, 1, 0.1};
  if (!(scale.majorUnit > 0) || !(length / scale.majorUnit < kMostSteps)) scale.majorUnit = length / 4;
}

void Rescale(AxisModel& axis, const xlsx::AxisSettings& settings) {
  axis.scale = xlsx::ScaleAxis(axis.extent, settings);
  MakeSound(axis);
}

void ScaleAxisAt(ChartModel& chart, int index) {
  AxisModel& axis = chart.axes[static_cast<std::size_t>(index)];
  bool headroom = true;
  for (const GroupModel& group : chart.groups) {
    const bool isX = group.HasXValues() && group.category == index;
    if (!isX && group.value != index) continue;
    headroom &= !group.is3D && group.grouping != Grouping::kPercent;
    AddGroup(group, isX, axis.extent);
    AddAnalysisExtent(chart, group, isX, axis.extent);
  }
  axis.settings = xlsx::SettingsOf(axis.node, headroom);
  axis.settings.logBase = axis.logBase;
  Rescale(axis, axis.settings);
}

}  // namespace

void CoarsenScale(AxisModel& axis) {
  const double unit = axis.scale.majorUnit;
  const double power = std::pow(10, std::floor(std::log10(unit) + 1e-9));
  const double leading = unit / power;
  xlsx::AxisSettings settings = axis.settings;
  settings.majorUnit = power * (leading < 1.5 ? 2 : leading < 3 ? 5 : 10);
  Rescale(axis, settings);
}

void ScaleAxes(ChartModel& chart) {
  // The visible part of a trendline along X values decides which values it needs.
  for (const bool ofX : {true, false}) {
    for (int i = 0; i < static_cast<int>(chart.axes.size()); ++i) {
      const bool hasX = std::any_of(chart.groups.begin(), chart.groups.end(), [&](const GroupModel& group) {
        return group.HasXValues() && group.category == i;
      });
      if (chart.axes[static_cast<std::size_t>(i)].IsOfValues() && hasX == ofX) ScaleAxisAt(chart, i);
    }
  }
}

}  // namespace plotsmith::render

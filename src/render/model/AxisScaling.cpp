#include <algorithm>
#include <cmath>

#include "render/model/ChartReader.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {

namespace schema = xlsx::schema;
namespace xml = xlsx::xml;

namespace {

/// The least and the greatest of the numbers it is given.
struct Extent {
  std::optional<double> least, greatest;

  void Add(double number) {
    if (!std::isfinite(number)) return;
    least = std::min(least.value_or(number), number);
    greatest = std::max(greatest.value_or(number), number);
  }
};

/// Values stacked point by point: what is above zero, and what is below.
struct Pile {
  double above = 0, below = 0;
};

void AddStacks(const GroupModel& group, Extent& extent) {
  std::vector<Pile> piles(group.PointCount());
  for (const SeriesModel& series : group.series) {
    for (std::size_t i = 0; i < series.values.size(); ++i) {
      const double value = series.values[i];
      if (std::isfinite(value)) (value > 0 ? piles[i].above : piles[i].below) += value;
    }
  }
  for (const Pile& pile : piles) {
    const double whole = group.grouping == Grouping::kPercent ? pile.above - pile.below : 1;
    if (!(whole > 0)) continue;
    if (pile.above > 0 || pile.below == 0) extent.Add(pile.above / whole);
    if (pile.below < 0) extent.Add(pile.below / whole);
  }
}

void AddGroup(const GroupModel& group, bool isX, Extent& extent) {
  if (!isX && group.IsStacked()) return AddStacks(group, extent);
  for (const SeriesModel& series : group.series) {
    for (const double value : isX ? series.x : series.values) extent.Add(value);
  }
}

/// A limit of a file, unless it is none that an axis can have.
std::optional<double> Limit(pugi::xml_node scaling, const char* name) {
  constexpr double kMost = 1e300;
  const auto value = schema::NumberVal(scaling, name);
  return value && std::abs(*value) <= kMost ? value : std::nullopt;
}

/// An axis that can be drawn, whatever the file and the data say.
void MakeSound(AxisModel& axis) {
  xlsx::AxisScale& scale = axis.scale;
  if (axis.logBase && !(scale.minimum > 0)) scale.minimum = scale.maximum > 1 ? 1 : scale.maximum / 10;
  if (axis.logBase && !(scale.minimum > 0)) scale = {1, *axis.logBase, *axis.logBase};
  if (!(scale.maximum > scale.minimum))
    scale.maximum = scale.minimum + std::max(std::abs(scale.minimum), 1.0);
  if (!std::isfinite(scale.maximum - scale.minimum)) scale = {0, 1, 0.1};
  if (!(scale.majorUnit > 0) || !std::isfinite(scale.majorUnit)) {
    scale.majorUnit = (scale.maximum - scale.minimum) / 5;
  }
}

void Rescale(AxisModel& axis, const xlsx::AxisSettings& settings) {
  axis.scale =
      axis.least ? xlsx::ScaleAxis(*axis.least, *axis.greatest, settings) : xlsx::ScaleEmptyAxis(settings);
  MakeSound(axis);
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
  for (std::size_t i = 0; i < chart.axes.size(); ++i) {
    AxisModel& axis = chart.axes[i];
    if (!axis.IsOfValues()) continue;
    Extent extent;
    bool headroom = true;
    for (const GroupModel& group : chart.groups) {
      const bool isX = group.HasXValues() && group.category == static_cast<int>(i);
      if (!isX && group.value != static_cast<int>(i)) continue;
      headroom &= !group.is3D && group.grouping != Grouping::kPercent;
      AddGroup(group, isX, extent);
    }
    const auto scaling = xml::Child(axis.node, "scaling");
    axis.settings = {Limit(scaling, "min"), Limit(scaling, "max"), schema::NumberVal(axis.node, "majorUnit"),
                     axis.logBase, headroom};
    if (!(axis.settings.majorUnit.value_or(1) > 0)) axis.settings.majorUnit.reset();
    axis.least = extent.least;
    axis.greatest = extent.greatest;
    Rescale(axis, axis.settings);
  }
}

}  // namespace plotsmith::render

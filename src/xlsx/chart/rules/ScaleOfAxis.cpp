#include "xlsx/chart/rules/ScaleOfAxis.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

#include "runtime/Variant.h"
#include "xlsx/chart/part/ChartCache.h"
#include "xlsx/chart/rules/GroupAxes.h"
#include "xlsx/chart/rules/PlotGroups.h"
#include "xlsx/chart/rules/SeriesData.h"
#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

using runtime::Variant;

namespace {

/// The least and the greatest number that were added.
struct Extent {
  std::optional<double> least, greatest;

  void Add(double number) {
    if (!std::isfinite(number)) return;
    least = std::min(least.value_or(number), number);
    greatest = std::max(greatest.value_or(number), number);
  }
};

/// X values that are texts count as the numbers of their points.
void AddXValues(pugi::xml_node series, Extent& extent) {
  const auto numbers = CachedNumbers(xml::Child(series, "xVal"));
  for (const Variant& number : numbers) {
    if (const double* value = number.If<double>()) extent.Add(*value);
  }
  if (!numbers.empty()) return;
  extent.Add(1);
  extent.Add(static_cast<double>(std::max<std::size_t>(PointCount(FindValues(series)), 1)));
}

/// The sums of stacked values by point, separately above and below zero.
struct Pile {
  double above = 0, below = 0;
};

void AddStacks(pugi::xml_node group, bool isPercent, Extent& extent) {
  std::vector<Pile> piles;
  for (const pugi::xml_node& series : xml::Children(group, "ser")) {
    const auto numbers = CachedNumbers(FindValues(series));
    piles.resize(std::max(piles.size(), numbers.size()));
    for (std::size_t i = 0; i < numbers.size(); ++i) {
      const double* value = numbers[i].If<double>();
      if (value != nullptr) (*value > 0 ? piles[i].above : piles[i].below) += *value;
    }
  }
  for (const Pile& pile : piles) {
    const double whole = isPercent ? pile.above - pile.below : 1;
    if (!(whole > 0)) continue;
    if (pile.above > 0 || pile.below == 0) extent.Add(pile.above / whole);
    if (pile.below < 0) extent.Add(pile.below / whole);
  }
}

void AddValues(pugi::xml_node group, Extent& extent) {
  const std::string grouping = schema::Val(group, "grouping");
  if (grouping == "stacked" || grouping == "percentStacked") {
    return AddStacks(group, grouping == "percentStacked", extent);
  }
  for (const pugi::xml_node& series : xml::Children(group, "ser")) {
    for (const Variant& number : CachedNumbers(FindValues(series))) {
      if (const double* value = number.If<double>()) extent.Add(*value);
    }
  }
}

}  // namespace

AxisScale ScaleOf(ChartPart& part, pugi::xml_node axis) {
  Extent extent;
  bool isPercent = false, is3D = false;
  for (const pugi::xml_node& group : part.Groups()) {
    const auto axes = AxesOf(group);
    if (std::find(axes.begin(), axes.end(), axis) == axes.end()) continue;
    is3D |= xml::LocalName(group).find("3D") != std::string_view::npos;
    isPercent |= schema::Val(group, "grouping") == "percentStacked";
    if (axis == RolesOf(axes).x) {
      for (const pugi::xml_node& series : xml::Children(group, "ser")) AddXValues(series, extent);
    } else {
      AddValues(group, extent);
    }
  }
  const auto scaling = xml::Child(axis, "scaling");
  AxisSettings settings{schema::NumberVal(scaling, "min"), schema::NumberVal(scaling, "max"),
                        schema::NumberVal(axis, "majorUnit"), schema::NumberVal(scaling, "logBase"),
                        !is3D && !isPercent};
  if (settings.majorUnit.value_or(1) <= 0) settings.majorUnit.reset();
  if (!extent.least) return ScaleEmptyAxis(settings);
  return ScaleAxis(*extent.least, *extent.greatest, settings);
}

}  // namespace plotsmith::xlsx

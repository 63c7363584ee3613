#include "xlsx/chart/rules/DataExtent.h"

#include <algorithm>
#include <cmath>

#include "xlsx/drawing/DrawingSchema.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {

void DataExtent::Add(double number) {
  if (!std::isfinite(number)) return;
  least = std::min(least.value_or(number), number);
  greatest = std::max(greatest.value_or(number), number);
}

void AddStacks(const std::vector<std::span<const double>>& series, const StackRules& rules,
               DataExtent& extent) {
  std::size_t count = 0;
  for (const auto& values : series) count = std::max(count, values.size());
  for (std::size_t i = 0; i < count; ++i) {
    double above = 0, below = 0, sum = 0;
    DataExtent sums;
    for (const auto& values : series) {
      if (i >= values.size() || !std::isfinite(values[i])) continue;
      (values[i] > 0 ? above : below) += values[i];
      sums.Add(sum += values[i]);
    }
    if (!sums.least) continue;
    if (rules.isPercent) {
      if (above > 0) extent.Add(1);
      if (below < 0) extent.Add(-1);
      continue;
    }
    // Otherwise, an axis of large sums could begin above whole series.
    extent.Add(0);
    extent.Add(rules.isSplit ? above : *sums.greatest);
    extent.Add(rules.isSplit ? below : *sums.least);
  }
}

AxisSettings SettingsOf(pugi::xml_node axis, bool headroom) {
  constexpr double kMost = 1e300;
  const auto scaling = xml::Child(axis, "scaling");
  const auto limit = [&](const char* name) {
    const auto value = schema::NumberVal(scaling, name);
    return value && std::abs(*value) <= kMost ? value : std::nullopt;
  };
  AxisSettings settings{limit("min"), limit("max"), schema::NumberVal(axis, "majorUnit"),
                        schema::NumberVal(scaling, "logBase"), headroom};
  if (!(settings.majorUnit.value_or(1) > 0)) settings.majorUnit.reset();
  if (settings.logBase && !std::isfinite(*settings.logBase)) settings.logBase.reset();
  return settings;
}

AxisScale ScaleAxis(const DataExtent& extent, const AxisSettings& settings) {
  return extent.least ? ScaleAxis(*extent.least, *extent.greatest, settings) : ScaleEmptyAxis(settings);
}

}  // namespace plotsmith::xlsx

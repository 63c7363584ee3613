#pragma once

#include <optional>
#include <pugixml.hpp>
#include <span>
#include <vector>

#include "xlsx/chart/rules/ScaleRules.h"

namespace plotsmith::xlsx {

/// The least and the greatest of the data along an axis.
struct DataExtent {
  std::optional<double> least, greatest;

  /// Takes a number into account, unless it is infinite or none.
  void Add(double number);
};

/// How the values of several series are added up.
struct StackRules {
  /// Bars below zero are stacked downwards, apart from those above it. Lines and areas are sums.
  bool isSplit = true;
  /// Values are shares of the sum of all magnitudes of their point.
  bool isPercent = false;
};

/// Adds the ends of stacks of series; NaN is a point without a value. An axis of percentages goes up to 100
/// if any value is above zero, and down to -100 if any is below.
void AddStacks(const std::vector<std::span<const double>>& series, const StackRules& rules,
               DataExtent& extent);

/// What is set by hand on an axis of values. Limits that no axis can have count as not set.
AxisSettings SettingsOf(pugi::xml_node axis, bool headroom);
/// The scale of an axis with such data and settings.
AxisScale ScaleAxis(const DataExtent& extent, const AxisSettings& settings);

}  // namespace plotsmith::xlsx

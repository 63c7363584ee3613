#pragma once

#include <optional>
#include <pugixml.hpp>
#include <span>
#include <vector>

#include "xlsx/chart/rules/ScaleRules.h"

namespace plotsmith::xlsx {

/// The smallest and the largest value along an axis.
struct DataExtent {
  /// The two values. They are absent if there are no data.
  std::optional<double> least, greatest;

  /// Includes a number, unless it is infinite or NaN.
  void Add(double number);
};

/// How the values of several series are added up.
struct StackRules {
  /// Whether values below zero are stacked downwards, separately from those above it, as in bars. Lines and
  /// areas are simply added up.
  bool isSplit = true;
  /// Whether values are shares of the sum of all absolute values of their point.
  bool isPercent = false;
};

/// Adds zero and the ends of stacked series; NaN is a point without a value. A percentage axis extends to 100
/// if any value is above zero, and to -100 if any value is below.
void AddStacks(const std::vector<std::span<const double>>& series, const StackRules& rules,
               DataExtent& extent);

/// Returns the manual settings of a value axis. Limits that are impossible for an axis are ignored.
AxisSettings SettingsOf(pugi::xml_node axis, bool headroom);
/// Returns the scale of an axis with these data and these settings.
AxisScale ScaleAxis(const DataExtent& extent, const AxisSettings& settings);

}  // namespace plotsmith::xlsx

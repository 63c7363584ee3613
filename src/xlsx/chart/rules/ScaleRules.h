#pragma once

#include <optional>

namespace plotsmith::xlsx {

/// The scale of a value axis, by the rules of Microsoft's article "How chart axis limits are calculated".
struct AxisScale {
  /// The ends of the axis, and the distance between two major ticks, in the unit of the values.
  double minimum = 0, maximum = 1, majorUnit = 0.1;
};

/// The settings of an axis that replace automatic ones. A limit that is set replaces the data on its side.
struct AxisSettings {
  /// The settings. They are absent if they are automatic.
  std::optional<double> minimum, maximum, majorUnit;
  /// The base of a logarithmic scale. It is absent for a linear scale.
  std::optional<double> logBase;
  /// Whether there is space above the largest value. 3-D charts and 100 % stacked charts have none.
  bool headroom = true;
};

/// Returns the scale for data from `least` to `greatest`.
AxisScale ScaleAxis(double least, double greatest, const AxisSettings& settings = {});
/// Returns the scale of an axis without data.
AxisScale ScaleEmptyAxis(const AxisSettings& settings);

}  // namespace plotsmith::xlsx

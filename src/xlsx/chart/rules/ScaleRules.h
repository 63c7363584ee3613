#pragma once

#include <optional>

namespace plotsmith::xlsx {

/// The scale of a value axis, by the rules of Microsoft's article "How chart axis limits are calculated".
struct AxisScale {
  double minimum = 0, maximum = 1, majorUnit = 0.1;
};

/// The settings of an axis that replace automatic ones. A limit that is set replaces the data on its side.
struct AxisSettings {
  std::optional<double> minimum, maximum, majorUnit;
  std::optional<double> logBase;
  /// True if there is space above the largest value. 3-D charts and 100 % stacked charts have none.
  bool headroom = true;
};

/// The scale for data from `least` to `greatest`.
AxisScale ScaleAxis(double least, double greatest, const AxisSettings& settings = {});
/// The scale of an axis without data.
AxisScale ScaleEmptyAxis(const AxisSettings& settings = {});

}  // namespace plotsmith::xlsx

#pragma once

#include <optional>

namespace plotsmith::xlsx {

/// How Excel scales an axis of values by itself, by the published rules (Microsoft's article "How chart axis
/// limits are calculated").
struct AxisScale {
  double minimum = 0, maximum = 1, majorUnit = 0.1;
};

/// What is set by hand on an axis. A limit that is set takes the place of the data's on its side.
struct AxisSettings {
  std::optional<double> minimum, maximum, majorUnit;
  std::optional<double> logBase;
  /// Charts in 3-D, and those stacked to 100 percent, leave no room above the greatest value.
  bool headroom = true;
};

/// For data from `least` to `greatest`.
AxisScale ScaleAxis(double least, double greatest, const AxisSettings& settings = {});
/// For an axis without data.
AxisScale ScaleEmptyAxis(const AxisSettings& settings = {});

}  // namespace plotsmith::xlsx

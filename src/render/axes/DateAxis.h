#pragma once

#include <string>
#include <vector>

#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// A major unit of an axis of dates.
struct DateTick {
  double slot = 0;  ///< from 0
  std::string label;
};

/// Returns the major units of an axis of dates with their labels. `axis.dates` must be set.
std::vector<DateTick> DateTicks(const AxisModel& axis, xlsx::DateSystem dates);

/// Returns the numbers of `count` points, from 0, in their order along an axis: sorted by their dates on an
/// axis of dates, otherwise unchanged.
std::vector<std::size_t> OrderAlong(const AxisModel& axis, std::size_t count);

}  // namespace plotsmith::render

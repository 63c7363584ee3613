#pragma once

#include <string>
#include <vector>

#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// A tick of a date axis.
struct DateTick {
  double slot = 0;    ///< The slot, from 0.
  std::string label;  ///< The text of the tick label.
};

/// Returns the major ticks of a date axis with their labels. `axis.dates` must be set.
std::vector<DateTick> DateTicks(const AxisModel& axis, xlsx::DateSystem dates);

/// Returns the indices of `count` points, from 0, in their order along an axis: sorted by date on a date
/// axis, otherwise unchanged.
std::vector<std::size_t> OrderAlong(const AxisModel& axis, std::size_t count);

}  // namespace plotsmith::render

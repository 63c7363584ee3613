#pragma once

#include <string>
#include <vector>

#include "render/model/ChartModel.h"

namespace plotsmith::render {

struct DateTick {
  double slot = 0;
  std::string label;
};

/// Where an axis of dates has its major units, with their labels.
std::vector<DateTick> DateTicks(const AxisModel& axis, xlsx::DateSystem dates);

/// The points of a group, from 0, as they follow each other along its axis: by their dates on an axis of
/// dates, else as they come.
std::vector<std::size_t> OrderAlong(const AxisModel& axis, std::size_t count);

}  // namespace plotsmith::render

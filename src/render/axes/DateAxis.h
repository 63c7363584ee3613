#pragma once

#include <string>
#include <vector>

#include "render/model/ChartModel.h"

namespace plotsmith::render {

struct DateTick {
  double slot = 0;
  std::string label;
};

/// Where an axis of dates has its major units, with what stands there.
std::vector<DateTick> DateTicks(const AxisModel& axis, xlsx::DateSystem dates);

/// The slot of a day: days from 1970, months or years from year 0. `serial` is Excel's number of the day.
long long SlotOf(double serial, TimeUnit base, xlsx::DateSystem dates);
/// Excel's number of the first day of a slot.
double SerialOf(long long slot, TimeUnit base, xlsx::DateSystem dates);

}  // namespace plotsmith::render

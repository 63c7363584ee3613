#pragma once

#include <cstdint>
#include <vector>

#include "xlsx/numberformat/DateSystem.h"

namespace plotsmith::render {

/// The days, months or years along an axis of dates. A slot is one of them.
enum class TimeUnit : std::uint8_t { kDays, kMonths, kYears };
struct DateSlots {
  TimeUnit base = TimeUnit::kDays;
  long long first = 0;            ///< the number of the first slot, days from 1970 or months or years from 0
  double count = 0;               ///< of slots
  std::vector<double> positions;  ///< of the categories, in slots from the first
  double majorUnit = 0;           ///< from label to label; 0 where Excel decides
  TimeUnit majorBase = TimeUnit::kDays;
};

/// The slot of a day: days from 1970, months or years from year 0. `serial` is Excel's number of the day.
long long SlotOf(double serial, TimeUnit base, xlsx::DateSystem dates);
/// Excel's number of the first day of a slot.
double SerialOf(long long slot, TimeUnit base, xlsx::DateSystem dates);

}  // namespace plotsmith::render

#pragma once

#include <cstdint>
#include <vector>

#include "xlsx/numberformat/DateSystem.h"

namespace plotsmith::render {

/// The unit of an axis of dates.
enum class TimeUnit : std::uint8_t { kDays, kMonths, kYears };

/// How categories lie along an axis of dates. A slot is a day, month or year on it.
struct DateSlots {
  TimeUnit base = TimeUnit::kDays;  ///< of a slot
  long long first = 0;              ///< the first slot, as SlotOf numbers it
  double count = 0;                 ///< of slots on the axis
  std::vector<double> positions;    ///< the places of the categories, in slots from the first
  double majorUnit = 0;             ///< from label to label, in `majorBase`; 0 if Excel decides
  TimeUnit majorBase = TimeUnit::kDays;
};

/// Returns the number of the slot of a day: days since 1970, or months or years since year 0. `serial` is
/// Excel's number of the day.
long long SlotOf(double serial, TimeUnit base, xlsx::DateSystem dates);
/// Returns Excel's number of the first day of a slot.
double SerialOf(long long slot, TimeUnit base, xlsx::DateSystem dates);

}  // namespace plotsmith::render

#pragma once

#include <cstdint>
#include <vector>

#include "xlsx/numberformat/DateSystem.h"

namespace plotsmith::render {

/// The unit of a date axis.
enum class TimeUnit : std::uint8_t { kDays, kMonths, kYears };

/// The positions of categories on a date axis. A slot is the space for a day, a month or a year.
struct DateSlots {
  /// The unit of a slot.
  TimeUnit base = TimeUnit::kDays;
  /// The number of the first slot, from SlotOf.
  long long first = 0;
  /// The number of slots on the axis.
  double count = 0;
  /// Whether the file sets the first and the last date. Then a trendline doesn't lengthen the axis there.
  bool hasFirst = false, hasLast = false;
  /// The positions of the categories, in slots from the first one. Categories outside of the axis have
  /// positions below 0 or from `count` on.
  std::vector<double> positions;
  /// The distance between two labels, in units of `majorBase`. 0 means automatic.
  double majorUnit = 0;
  /// The unit of `majorUnit`.
  TimeUnit majorBase = TimeUnit::kDays;
};

/// Returns the number of the slot for a date: days since 1970-01-01, or months or years since year 0.
/// `serial` is the serial number of the date in Excel.
long long SlotOf(double serial, TimeUnit base, xlsx::DateSystem dates);
/// Returns the serial number in Excel of the first day of a slot.
double SerialOf(long long slot, TimeUnit base, xlsx::DateSystem dates);

}  // namespace plotsmith::render

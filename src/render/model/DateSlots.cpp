#include "render/model/DateSlots.h"

#include <chrono>
#include <cmath>

namespace plotsmith::render {
namespace {

using std::chrono::day;
using std::chrono::days;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

long long DayOf(double serial, xlsx::DateSystem dates) {
  const double shifted = serial + xlsx::SerialOffset(dates) - xlsx::kSerialOf1970;
  return static_cast<long long>(std::floor(shifted));
}

}  // namespace

long long SlotOf(double serial, TimeUnit base, xlsx::DateSystem dates) {
  const long long number = DayOf(serial, dates);
  if (base == TimeUnit::kDays) return number;
  const year_month_day date{sys_days(days(number))};
  const long long years = static_cast<int>(date.year());
  return base == TimeUnit::kYears ? years : years * 12 + static_cast<unsigned>(date.month()) - 1;
}

double SerialOf(long long slot, TimeUnit base, xlsx::DateSystem dates) {
  long long number = slot;
  if (base != TimeUnit::kDays) {
    const long long months = base == TimeUnit::kYears ? slot * 12 : slot;
    const year_month_day date{year(static_cast<int>(months / 12)),
                              month(static_cast<unsigned>(months % 12 + 1)), day(1)};
    number = sys_days(date).time_since_epoch().count();
  }
  return static_cast<double>(number + xlsx::kSerialOf1970 - xlsx::SerialOffset(dates));
}

}  // namespace plotsmith::render

#include "render/axes/DateAxis.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <numeric>

namespace plotsmith::render {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr std::size_t kMostDates = 400;
constexpr double kUsualTicks = 32;  // the maximum number of ticks on an axis without a unit

/// The distance between two labels.
struct Step {
  double count = 1;
  TimeUnit unit = TimeUnit::kDays;
};

/// Returns the approximate length of a step in slots.
double SlotsIn(const Step& step, TimeUnit base) {
  constexpr double kDaysIn[] = {1, 30.5, 365.25};
  return step.count * kDaysIn[static_cast<int>(step.unit)] / kDaysIn[static_cast<int>(base)];
}

Step StepOf(const DateSlots& slots) {
  if (slots.majorUnit > 0) return {slots.majorUnit, slots.majorBase};
  using enum TimeUnit;
  constexpr std::array<Step, 14> kSteps = {{{1, kDays},
                                            {2, kDays},
                                            {7, kDays},
                                            {14, kDays},
                                            {1, kMonths},
                                            {2, kMonths},
                                            {3, kMonths},
                                            {6, kMonths},
                                            {1, kYears},
                                            {2, kYears},
                                            {5, kYears},
                                            {10, kYears},
                                            {50, kYears},
                                            {100, kYears}}};
  for (const Step& step : kSteps) {
    if (step.unit >= slots.base && slots.count / SlotsIn(step, slots.base) <= kUsualTicks) return step;
  }
  return kSteps.back();
}

/// Returns the slot of a tick, which counts from 0. Steps of months and years keep the day of the month if
/// possible.
long long TickSlot(const DateSlots& slots, const Step& step, long long index) {
  const auto count = static_cast<long long>(step.count) * index;
  if (slots.base == TimeUnit::kYears) return slots.first + count;
  if (slots.base == TimeUnit::kMonths) return slots.first + count * (step.unit == TimeUnit::kYears ? 12 : 1);
  if (step.unit == TimeUnit::kDays) return slots.first + count;
  const year_month_day first{sys_days(days(slots.first))};
  const auto moved = first + std::chrono::months(count * (step.unit == TimeUnit::kYears ? 12 : 1));
  const auto date = moved.ok() ? moved : year_month_day(moved.year() / moved.month() / std::chrono::last);
  return sys_days(date).time_since_epoch().count();
}

}  // namespace

std::vector<std::size_t> OrderAlong(const AxisModel& axis, std::size_t count) {
  std::vector<std::size_t> order(count);
  std::iota(order.begin(), order.end(), std::size_t{0});
  if (!axis.dates) return order;
  const std::vector<double>& positions = axis.dates->positions;
  const auto place = [&](std::size_t point) {
    return point < positions.size() ? positions[point] : static_cast<double>(point);
  };
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return place(a) < place(b); });
  return order;
}

std::vector<DateTick> DateTicks(const AxisModel& axis, xlsx::DateSystem dates) {
  std::vector<DateTick> ticks;
  const DateSlots& slots = *axis.dates;
  const Step step = StepOf(slots);
  for (long long i = 0; ticks.size() < kMostDates; ++i) {
    const long long slot = TickSlot(slots, step, i);
    const auto place = static_cast<double>(slot - slots.first);
    if (!(place < slots.count)) break;
    DateTick& tick = ticks.emplace_back();
    tick.slot = place;
    axis.format->AppendNumber(tick.label, SerialOf(slot, slots.base, dates), dates);
  }
  return ticks;
}

}  // namespace plotsmith::render

#include "render/axes/AxisMap.h"

#include <algorithm>
#include <cmath>

namespace plotsmith::render {
namespace {

constexpr double kFarthest = 1e5;  // points; positions farther away are moved to this one
constexpr std::size_t kMostTicks = 1000;
constexpr double kDust = 1e-9;  // share of a unit that rounding may add or remove

}  // namespace

AxisMap::AxisMap(const AxisModel& axis, double low, double high)
    : axis_(axis),
      low_(axis.reversed ? high : low),
      high_(axis.reversed ? low : high),
      slots_(axis.SlotCount()) {}

AxisMap AxisMap::Along(const AxisModel& axis, const Rect& plot) {
  return axis.IsUpright() ? AxisMap(axis, plot.Bottom(), plot.top) : AxisMap(axis, plot.left, plot.Right());
}

double AxisMap::Fraction(double value) const {
  const auto& scale = axis_.scale;
  if (!axis_.logBase) return (value - scale.minimum) / (scale.maximum - scale.minimum);
  if (!(value > 0)) return -1;  // The position is below the axis.
  return std::log(value / scale.minimum) / std::log(scale.maximum / scale.minimum);
}

double AxisMap::OfValue(double value) const {
  const double place = low_ + Fraction(value) * (high_ - low_);
  return std::isnan(place) ? low_ : std::clamp(place, -kFarthest, kFarthest);
}

double AxisMap::OfCategory(double index) const {
  if (!axis_.dates) return OfSlot(index);
  const auto& positions = axis_.dates->positions;
  const auto number = static_cast<std::size_t>(std::max(index, 0.0));
  // A date far outside of the axis is moved nearer, so that the line from it to the next date is drawn.
  return std::clamp(OfSlot(number < positions.size() ? positions[number] : index), -kFarthest, kFarthest);
}

double AxisMap::OfX(double x) const {
  if (axis_.IsOfValues()) return OfValue(x);
  const double place = OfSlot(x - 1);
  return std::isfinite(place) ? std::clamp(place, -kFarthest, kFarthest) : low_;
}

double AxisMap::OfSlot(double index) const {
  if (axis_.crossesBetween) return low_ + (index + 0.5) / slots_ * (high_ - low_);
  if (slots_ < 2) return (low_ + high_) / 2 + index * (high_ - low_);  // a slot is as long as the axis
  return low_ + index / (slots_ - 1) * (high_ - low_);
}

double AxisMap::CategoryWidth() const {
  return std::abs(high_ - low_) / (axis_.crossesBetween ? slots_ : std::max(slots_ - 1, 1.0));
}

double AxisMap::Base() const {
  if (axis_.logBase) return low_;
  return OfValue(std::clamp(0.0, axis_.scale.minimum, axis_.scale.maximum));
}

std::vector<Tick> MajorTicks(const AxisModel& axis, xlsx::DateSystem dates) {
  std::vector<Tick> ticks;
  const auto& scale = axis.scale;
  const auto add = [&](double value) {
    Tick& tick = ticks.emplace_back();
    tick.value = value;
    axis.format->AppendNumber(tick.label, value / axis.units.factor, dates);
  };
  if (axis.logBase) {
    const double step = std::max(scale.majorUnit, 2.0);
    for (double value = scale.minimum; value <= scale.maximum * (1 + kDust) && ticks.size() < kMostTicks;
         value *= step) {
      add(value);
    }
    return ticks;
  }
  const double count = std::floor((scale.maximum - scale.minimum) / scale.majorUnit + kDust);
  // If there are too many units, only some have a tick, at equal distances.
  const double every = std::max(std::ceil(count / static_cast<double>(kMostTicks - 1)), 1.0);
  for (double i = 0; i <= count && ticks.size() < kMostTicks; i += every) {
    double value = scale.minimum + i * scale.majorUnit;
    if (std::abs(value) < scale.majorUnit * kDust) value = 0;
    add(value);
  }
  return ticks;
}

std::vector<double> MinorTicks(const AxisModel& axis) {
  std::vector<double> ticks;
  const auto& scale = axis.scale;
  if (axis.logBase) {
    for (double power = scale.minimum; power < scale.maximum && ticks.size() < kMostTicks;
         power *= *axis.logBase) {
      for (double factor = 2; factor < *axis.logBase && ticks.size() < kMostTicks; ++factor) {
        if (power * factor < scale.maximum) ticks.push_back(power * factor);
      }
    }
    return ticks;
  }
  const double unit = axis.minorUnit.value_or(scale.majorUnit / 5);
  const double count = (scale.maximum - scale.minimum) / unit;
  if (!(count < static_cast<double>(kMostTicks))) return ticks;
  for (double i = 1; i < count; ++i) ticks.push_back(scale.minimum + i * unit);
  return ticks;
}

}  // namespace plotsmith::render

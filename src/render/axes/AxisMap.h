#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Where the values or the categories of an axis lie along it. Places are points on the drawing: x of a flat
/// axis, y of an upright one. An axis that isn't reversed goes from `low` to `high`.
class AxisMap {
 public:
  AxisMap(const AxisModel& axis, double low, double high);
  /// Along the side of a plot area that the axis has.
  static AxisMap Along(const AxisModel& axis, const Rect& plot);

  /// The place of a value, which may lie outside of the axis, but not farther than painters can count.
  double OfValue(double value) const;
  /// The middle of a category, from 0; on the axis of values' crossings where those are on categories.
  double OfCategory(double index) const;
  /// The same of a place between categories, or of a date on an axis of dates, counted in slots from the
  /// first.
  double OfSlot(double index) const;
  /// The place of an X value: on an axis of categories they are counted from 1.
  double OfX(double x) const;
  /// From one category to the next; never negative.
  double CategoryWidth() const;
  /// The place where stacks begin: zero, or the limit that is nearest to it.
  double Base() const;
  double Low() const { return low_; }
  double High() const { return high_; }

 private:
  double Fraction(double value) const;

  const AxisModel& axis_;
  double low_, high_;
  double slots_;  ///< categories, or days, months or years
};

struct Tick {
  double value = 0;
  std::string label;
};
/// Where an axis of values has its major units, with their labels; a thousand at most.
std::vector<Tick> MajorTicks(const AxisModel& axis, xlsx::DateSystem dates);
/// Between them.
std::vector<double> MinorTicks(const AxisModel& axis);

}  // namespace plotsmith::render

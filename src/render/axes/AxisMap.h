#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Converts values and categories to places along an axis. A place is a coordinate on the drawing, in points:
/// x on a horizontal axis, y on a vertical one. The axis must outlive the map.
class AxisMap {
 public:
  /// Makes the map of an axis between two places. An axis that isn't reversed goes from `low` to `high`.
  AxisMap(const AxisModel& axis, double low, double high);
  /// Makes the map of an axis along its side of a plot area.
  static AxisMap Along(const AxisModel& axis, const Rect& plot);

  /// Returns the place of a value. It may be outside of the axis, but not so far that painters lose digits.
  double OfValue(double value) const;
  /// Returns the middle of a category, which counts from 0. If the axis of values crosses on categories, the
  /// first and the last category are at the ends of the axis.
  double OfCategory(double index) const;
  /// Returns the place of a slot, which counts from 0: a category, or a day, month or year of an axis of
  /// dates. The slot may be a fraction.
  double OfSlot(double index) const;
  /// Returns the place of an X value. On an axis of categories, it is the number of a category from 1.
  double OfX(double x) const;
  /// Returns the distance from one slot to the next, in points. It is never negative.
  double CategoryWidth() const;
  /// Returns the place of zero, or of the end of the scale that is nearest to zero.
  double Base() const;
  /// The place where the axis begins.
  double Low() const { return low_; }
  /// The place where the axis ends.
  double High() const { return high_; }

 private:
  double Fraction(double value) const;

  const AxisModel& axis_;
  double low_, high_;
  double slots_;  ///< categories, or days, months or years
};

/// A major unit of an axis of values.
struct Tick {
  double value = 0;
  std::string label;
};
/// Returns the major units of an axis of values with their labels. If there are more than a thousand, some
/// are left out.
std::vector<Tick> MajorTicks(const AxisModel& axis, xlsx::DateSystem dates);
/// Returns the minor units between the major ones. Returns none if there are a thousand or more.
std::vector<double> MinorTicks(const AxisModel& axis);

}  // namespace plotsmith::render

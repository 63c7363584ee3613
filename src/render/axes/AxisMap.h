#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// Converts values and categories to positions along an axis. A position is a coordinate of the drawing in
/// points: X on a horizontal axis, Y on a vertical one. The axis must outlive the map.
class AxisMap {
 public:
  /// Makes the map of an axis between two positions. An axis that isn't reversed goes from `low` to `high`.
  AxisMap(const AxisModel& axis, double low, double high);
  /// Makes the map of an axis along its side of a plot area.
  static AxisMap Along(const AxisModel& axis, const Rect& plot);

  /// Returns the position of a value. It may be outside of the axis, but is limited so that painters don't
  /// lose precision.
  double OfValue(double value) const;
  /// Returns the middle of a category by its index, from 0. If the value axis crosses on categories, the
  /// first and the last category are at the ends of the category axis.
  double OfCategory(double index) const;
  /// Returns the position of a slot by its index, from 0: a category, or a day, month or year of a date axis.
  /// The index may be a fraction.
  double OfSlot(double index) const;
  /// Returns the position of an X value. On a category axis, an X value is the number of a category, from 1.
  double OfX(double x) const;
  /// Returns the distance from one slot to the next, in points. It is never negative.
  double CategoryWidth() const;
  /// Returns the position of zero. If zero isn't on the scale, this is the end that is nearest to zero.
  double Base() const;
  /// The position at which the axis begins.
  double Low() const { return low_; }
  /// The position at which the axis ends.
  double High() const { return high_; }

 private:
  double Fraction(double value) const;

  const AxisModel& axis_;
  double low_, high_;
  double slots_;  ///< The number of categories, or of days, months or years.
};

/// A tick of a value axis.
struct Tick {
  double value = 0;   ///< The value.
  std::string label;  ///< The text of the tick label.
};
/// Returns the major ticks of a value axis with their labels. If there are more than a thousand, some are
/// left out.
std::vector<Tick> MajorTicks(const AxisModel& axis, xlsx::DateSystem dates);
/// Returns the values of the minor ticks between the major ones. Returns none if there are a thousand or
/// more.
std::vector<double> MinorTicks(const AxisModel& axis);

}  // namespace plotsmith::render

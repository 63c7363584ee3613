#pragma once

#include <cstddef>

#include "render/model/ChartModel.h"
#include "render/threed/Projection.h"

namespace plotsmith::render {

/// A part of an axis, in shares from 0 (beginning) to 1 (end).
struct Span {
  /// The beginning and the end of the part.
  double from = 0, to = 1;

  /// The middle of the part.
  double Middle() const { return (from + to) / 2; }
};

/// The axes of a chart in 3-D, and the positions of its categories, series and values along them. Positions
/// are shares of the length of an axis. The category axis goes to the right, or up for horizontal bars; the
/// value axis goes up, or to the right; the depth goes to the back.
class Stage {
 public:
  /// Makes the axes of a group. The group must be in 3-D and have a category axis and a value axis. `chart`
  /// and `group` must outlive this object.
  Stage(const ChartModel& chart, const GroupModel& group);

  /// The group that is drawn.
  const GroupModel& Group() const { return group_; }
  /// Returns true if a missing value counts as zero, whose body has no height.
  bool BlanksAreZero() const { return chart_.blanks == "zero"; }
  /// The category axis.
  const AxisModel& Categories() const { return chart_.axes[static_cast<std::size_t>(group_.category)]; }
  /// The value axis.
  const AxisModel& Values() const { return chart_.axes[static_cast<std::size_t>(group_.value)]; }
  /// The series axis; null if all series are at the same depth.
  const AxisModel* Series() const;
  /// Returns true if bars are horizontal.
  bool IsHorizontal() const { return group_.horizontal; }
  /// Returns the proportions of the box in a view.
  BoxShape Shape(const View& view) const;

  /// The number of categories, at least one.
  std::size_t CategoryCount() const { return categories_; }
  /// Returns true if the first and the last category are at the edges of the box.
  bool PointsAreOnTicks() const;
  /// Returns the space of a category by its index, from 0.
  Span Category(std::size_t index) const;
  /// Returns the position at which a category, by its index from 0, begins on its axis. For the number of
  /// categories as the index, returns the end of the last one.
  double EdgeBefore(std::size_t index) const;
  /// Returns the space for the bar of a series in a category. Both indices count from 0.
  Span Bar(std::size_t category, std::size_t series) const;
  /// Returns the space of a series in the depth. All series of a stacked group have the same space.
  Span Depth(std::size_t series) const;
  /// Returns the position of a value. Values beyond the axis get the position of its end.
  double Value(double value) const;
  /// Returns the position at which bars and areas begin.
  double Base() const;

  /// Returns a position in the box of a projection.
  Point3 At(const Projection& projection, double category, double value, double depth) const;
  /// Returns the position of the viewer along the axes of the stage: X along the category axis, Y along the
  /// value axis, Z along the depth.
  Point3 EyeShares(const Projection& projection) const;

 private:
  std::size_t DepthSlots() const;
  std::size_t BarsOfCategory() const;
  /// Returns the width of a bar as a share of its category.
  double BarShare() const;

  const ChartModel& chart_;
  const GroupModel& group_;
  std::size_t categories_ = 1;
  double gapDepth_ = 1.5;  ///< The gap between series in the depth, as a share of the depth of a bar.
};

}  // namespace plotsmith::render

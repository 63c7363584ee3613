#pragma once

#include <cstddef>

#include "render/model/ChartModel.h"
#include "render/threed/Projection.h"

namespace plotsmith::render {

/// A share of an axis, from 0 at its beginning to 1 at its end.
struct Span {
  double from = 0, to = 1;

  double Middle() const { return (from + to) / 2; }
};

/// The axes of a chart in 3-D and what is shared out along them, in any view. Shares of the category
/// axis go to the right, or up with lying bars; those of the value axis the other way; those of the depth to
/// the back.
class Stage {
 public:
  /// The chart must have a group in 3-D with axes of categories and of values.
  Stage(const ChartModel& chart, const GroupModel& group);

  const GroupModel& Group() const { return group_; }
  /// Whether a missing value counts as zero, which has a body without a height.
  bool BlanksAreZero() const { return chart_.blanks == "zero"; }
  const AxisModel& Categories() const { return chart_.axes[static_cast<std::size_t>(group_.category)]; }
  const AxisModel& Values() const { return chart_.axes[static_cast<std::size_t>(group_.value)]; }
  /// Null where all series stand at the same depth.
  const AxisModel* Series() const;
  bool Lying() const { return group_.horizontal; }
  /// How deep the box is, for a view.
  BoxShape Shape(const View& view) const;

  std::size_t CategoryCount() const { return categories_; }
  /// Whether the first and the last category lie on the edges of the box.
  bool StandsOnTicks() const;
  /// The room of a category, also where values stand on its middle.
  Span Category(std::size_t index) const;
  /// The room of the bar of a series within its category.
  Span Bar(std::size_t category, std::size_t series) const;
  /// What a series takes of the depth; all of a stacked group take the same.
  Span Depth(std::size_t series) const;
  /// Where a value is, kept within the axis.
  double Value(double value) const;
  /// Where bars and areas begin.
  double Base() const;

  /// A place in the box of a projection by its shares.
  Point3 At(const Projection& projection, double category, double value, double depth) const;
  /// The viewer's place along one of the shares, comparable with those times the box's extents.
  Point3 EyeShares(const Projection& projection) const;

 private:
  std::size_t DepthSlots() const;
  std::size_t BarsOfCategory() const;
  /// The width of a bar as a share of its category.
  double BarShare() const;

  const ChartModel& chart_;
  const GroupModel& group_;
  std::size_t categories_ = 1;
  double gapDepth_ = 1.5;  ///< of the depth of a bar
};

}  // namespace plotsmith::render

#pragma once

#include <vector>

#include "render/Canvas.h"
#include "render/axes/AxisMap.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// A point of a series as it was drawn, for its label: the rectangle of a bar or bubble, or the place of a
/// marker with no extent.
struct DrawnPoint {
  const GroupModel* group = nullptr;
  const SeriesModel* series = nullptr;
  std::size_t index = 0;  ///< from 0
  Rect box;
  bool negative = false;
  // of slices: angles in degrees clockwise from twelve o'clock, and the circle that it is of
  double angle = 0, sweep = 0;
  Rect circle;
  double hole = 0;   ///< of the radius
  double share = 0;  ///< of the whole, where there is one: what a percentage shows
};

/// The chart, the rectangle inside of its axes, and the canvas.
struct Plot {
  const ChartModel& chart;
  Rect area;
  Canvas& canvas;
  std::vector<DrawnPoint> points = {};  ///< those with labels, as the families keep them
  std::size_t symbolsLeft = 100'000;    ///< markers and bubbles that may be drawn

  /// Whether one more marker or bubble may be drawn; says it if not.
  bool TakeSymbol();
  /// Keeps a point that was drawn, if it has a label.
  void Keep(const DrawnPoint& point);
  const AxisModel* CategoryAxisOf(const GroupModel& group) const;
  const AxisModel* ValueAxisOf(const GroupModel& group) const;
  /// The place along the axis of values where the category axis crosses it. The group has both axes.
  double CrossingOf(const GroupModel& group) const;
  /// The place where the bars or areas of such a group begin: the crossing, or zero if they are stacked.
  double BaseOf(const GroupModel& group) const;
};

/// Lower and upper end of each value of a group's series, stacked or in percent as the group says:
/// [series][point]. NaN where a point has no value.
struct Extents {
  std::vector<std::vector<double>> from, to;
};
Extents StackValues(const GroupModel& group);

}  // namespace plotsmith::render

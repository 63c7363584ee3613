#pragma once

#include <vector>

#include "render/Canvas.h"
#include "render/axes/AxisMap.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// A point of a series as it was drawn, for its label.
struct DrawnPoint {
  const GroupModel* group = nullptr;
  const SeriesModel* series = nullptr;
  std::size_t index = 0;  ///< from 0
  Rect box;  ///< the rectangle of a bar or bubble; that of a point without a marker has no extent
  bool negative =
      false;  ///< a bar or area that goes from its base towards lower values, or a bubble of negative size
  double angle = 0;  ///< where a slice begins, in degrees clockwise from twelve o'clock
  double sweep = 0;  ///< the extent of a slice in degrees
  Rect circle;       ///< the circle that a slice is part of; an ellipse in 3-D
  double hole = 0;   ///< radius of a doughnut's hole as a share of the circle's radius
  double share = 0;  ///< of a slice in the whole, from 0 to 1
};

/// The plot area that the families draw on.
struct Plot {
  const ChartModel& chart;
  Rect area;  ///< the rectangle between the axes
  Canvas& canvas;
  std::vector<DrawnPoint> points = {};  ///< drawn points that have labels; see Keep
  std::size_t symbolsLeft = 100'000;    ///< markers and bubbles that may still be drawn

  /// Counts one more marker or bubble. Returns false, and adds a note, if no more may be drawn.
  bool TakeSymbol();
  /// Keeps a drawn point for its label. Points without a label aren't kept.
  void Keep(const DrawnPoint& point);
  /// The axis of categories or X values of a group; null if it has none.
  const AxisModel* CategoryAxisOf(const GroupModel& group) const;
  /// The axis of values of a group; null if it has none.
  const AxisModel* ValueAxisOf(const GroupModel& group) const;
  /// Returns the place along the axis of values where the category axis crosses it, in points. The group must
  /// have both axes.
  double CrossingOf(const GroupModel& group) const;
  /// Returns the place where the bars or areas of a group begin: the crossing, or zero if they are stacked.
  /// The group must have both axes.
  double BaseOf(const GroupModel& group) const;
};

/// The beginning and the end of each value of a group's series, as [series][point]. NaN if a point has no
/// value.
struct Extents {
  std::vector<std::vector<double>> from, to;
};
/// Returns the sum of the absolute values of each point of a group, which is 100 percent.
std::vector<double> PointTotals(const GroupModel& group);
/// Stacks the values of a group, or turns them into shares of 1, as its grouping says. Values that aren't
/// stacked begin at 0.
Extents StackValues(const GroupModel& group);

}  // namespace plotsmith::render

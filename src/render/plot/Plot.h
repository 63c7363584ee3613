#pragma once

#include <vector>

#include "render/Canvas.h"
#include "render/axes/AxisMap.h"
#include "render/model/ChartModel.h"

namespace plotsmith::render {

/// A point of a series that was drawn. It determines the position of the label.
struct DrawnPoint {
  const GroupModel* group = nullptr;    ///< The plot group of the series.
  const SeriesModel* series = nullptr;  ///< The series of the point.
  std::size_t index = 0;                ///< The index of the point in the series, from 0.
  /// The rectangle of a bar, a bubble or a marker. It has no extent for a point without a marker.
  Rect box;
  /// Whether a bar or an area goes from its base towards lower values, or the size of a bubble is negative.
  bool negative = false;
  /// The angle at which a slice begins, in degrees clockwise from twelve o'clock.
  double angle = 0;
  /// The angle that a slice covers, in degrees.
  double sweep = 0;
  /// The rectangle around the circle of a slice, or around the ellipse in 3-D.
  Rect circle;
  /// The radius of the hole of a doughnut, as a share of the radius of the circle.
  double hole = 0;
  /// The share of a slice in the sum, from 0 to 1.
  double share = 0;
  /// Whether the point is in the second plot of a pie of pie. In a bar of pie, it is a rectangle, which has
  /// only `box` and `share`.
  bool isInSecondPlot = false;

  /// Returns true if the point is a rectangle of the bar in a bar of pie.
  bool IsPieceOfBar() const { return isInSecondPlot && group->isBarOfPie; }
};

/// The plot area that the families draw on.
struct Plot {
  const ChartModel& chart;              ///< The chart that is drawn.
  Rect area;                            ///< The rectangle between the axes.
  Canvas& canvas;                       ///< The canvas that gets the items.
  std::vector<DrawnPoint> points = {};  ///< The drawn points that have labels. Keep adds them.
  std::size_t symbolsLeft = 100'000;    ///< The number of markers and bubbles that may still be drawn.

  /// Counts one more marker or bubble. Returns false, and adds a note, if no more may be drawn.
  bool TakeSymbol();
  /// Returns true if a part of the rectangle of a point is inside the plot area. A rectangle without extent
  /// may also be on its edge.
  bool Shows(const Rect& box) const;
  /// Adds a drawn point to `points` if it has a label.
  void Keep(const DrawnPoint& point);
  /// Returns the category axis or the axis of X values of a group, or null if it has none.
  const AxisModel* CategoryAxisOf(const GroupModel& group) const;
  /// Returns the value axis of a group, or null if it has none.
  const AxisModel* ValueAxisOf(const GroupModel& group) const;
  /// Returns the position along the value axis at which the category axis crosses it, in points. The group
  /// must have both axes.
  double CrossingOf(const GroupModel& group) const;
  /// Returns the position at which the bars or areas of a group begin: the crossing, or zero if they are
  /// stacked. The group must have both axes.
  double BaseOf(const GroupModel& group) const;
};

/// The beginning and the end of each value of the series of a group, as [series][point]. A point without a
/// value has NaN.
struct Extents {
  /// The beginnings and the ends, in units of the value axis or in shares of 1.
  std::vector<std::vector<double>> from, to;
};
/// Returns the sum of the absolute values of each point of a group, which is 100 percent.
std::vector<double> PointTotals(const GroupModel& group);
/// Stacks the values of a group, or converts them to shares of 1, depending on its grouping. Values that
/// aren't stacked begin at 0.
Extents StackValues(const GroupModel& group);

}  // namespace plotsmith::render

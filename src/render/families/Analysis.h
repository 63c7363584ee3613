#pragma once

#include <cstddef>
#include <vector>

#include "render/plot/Plot.h"

namespace plotsmith::render {

/// Collects points of a group that were drawn, and draws their error bars.
class ErrorBarPainter {
 public:
  /// Makes a painter for a group. `plot` and `group` must outlive it.
  ErrorBarPainter(Plot& plot, const GroupModel& group);

  /// Adds a point. `along` is its position along the category axis or the axis of X values, and `value` is
  /// its value. If the values are stacked, `value` is the sum up to the point.
  void Add(const SeriesModel& series, std::size_t point, double along, double value);
  /// Draws the error bars of the points that were added.
  void Draw();
  /// Draws the error bars of the points that were added, clipped to the plot area.
  void DrawClipped();

 private:
  struct BarPoint {
    const SeriesModel* series;
    std::size_t index;
    double along, value;
  };
  void DrawBar(const BarPoint& point, const ErrorBars& bars);

  Plot& plot_;
  const GroupModel& group_;
  std::vector<double>
      wholes_;  ///< The sum of each point, which is 100 percent; empty if values aren't shares.
  std::vector<BarPoint> points_;
};

/// Draws the trendlines of a group with their labels.
void DrawTrendlines(Plot& plot, const GroupModel& group);

/// Draws the up/down bars of a group of lines, if it has any.
void DrawUpDownBars(Plot& plot, const GroupModel& group, const Extents& extents);

}  // namespace plotsmith::render

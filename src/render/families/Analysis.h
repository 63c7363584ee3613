#pragma once

#include <cstddef>
#include <vector>

#include "render/plot/Plot.h"

namespace plotsmith::render {

/// Collects points of a group that were drawn, and draws their error bars.
class ErrorBarPainter {
 public:
  ErrorBarPainter(Plot& plot, const GroupModel& group);

  /// `along` is the place of the point along the axis of categories or X values; `value` is its value, or the
  /// sum up to it where values are stacked.
  void Add(const SeriesModel& series, std::size_t point, double along, double value);
  /// Draws the bars of the points so far.
  void Draw();
  /// The same within the plot area.
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
  std::vector<double> wholes_;  ///< what 100 percent are at each point; empty if values aren't shares
  std::vector<BarPoint> points_;
};

/// Draws the trendlines of a group with their labels.
void DrawTrendlines(Plot& plot, const GroupModel& group);

/// Draws bars from the first series to the last one, where a group of lines has them.
void DrawUpDownBars(Plot& plot, const GroupModel& group, const Extents& extents);

}  // namespace plotsmith::render

#include "xlsx/chart/part/ChartSize.h"

#include <algorithm>

#include "xlsx/drawing/DrawnShape.h"

namespace plotsmith::xlsx {
namespace {

/// The size, in points, of a chart sheet that Excel makes for Letter paper.
constexpr Frame kChartSheet = {0, 0, 682.5, 495};

}  // namespace

Frame ChartSize(const std::weak_ptr<DrawnShape>& frame) {
  const auto shape = frame.lock();
  if (!shape) return kChartSheet;
  const Frame placed = shape->PlacedFrame();
  // Positions on the chart are divided by its size, which therefore must not be 0.
  return {0, 0, std::max(placed.width, 1.0), std::max(placed.height, 1.0)};
}

}  // namespace plotsmith::xlsx

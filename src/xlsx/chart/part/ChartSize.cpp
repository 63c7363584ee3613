#include "xlsx/chart/part/ChartSize.h"

#include <algorithm>

#include "xlsx/drawing/DrawnShape.h"

namespace plotsmith::xlsx {
namespace {

/// The size of a chart sheet that Excel makes for paper of letter size.
constexpr Frame kChartSheet = {0, 0, 682.5, 495};

}  // namespace

Frame ChartSize(const std::weak_ptr<DrawnShape>& frame) {
  const auto shape = frame.lock();
  if (!shape) return kChartSheet;
  const Frame placed = shape->PlacedFrame();
  // Places on the chart are fractions of its size, which must not be 0.
  return {0, 0, std::max(placed.width, 1.0), std::max(placed.height, 1.0)};
}

}  // namespace plotsmith::xlsx

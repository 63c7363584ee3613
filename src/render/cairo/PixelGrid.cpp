#include "render/cairo/PixelGrid.h"

#include <algorithm>
#include <cmath>

namespace plotsmith::render {

bool IsUpright(const Path& path) {
  Point at;
  for (const PathStep& step : path.Steps()) {
    if (step.kind == PathStep::Kind::kCurve) return false;
    if (step.kind == PathStep::Kind::kLine && step.to.x != at.x && step.to.y != at.y) return false;
    at = step.to;
  }
  return true;
}

Path OnPixels(const Path& path, const PixelScale& scale, double strokeWidth) {
  const bool odd = strokeWidth > 0 && std::lround(WidthOnPixels(strokeWidth, scale) * scale.x) % 2 == 1;
  const auto snap = [&](double place, double pixels) {
    // Positions on an edge between pixels are always rounded to the same side.
    constexpr double kDust = 1e-6;
    const double at = place * pixels + kDust;
    return (odd ? std::floor(at) + 0.5 : std::round(at)) / pixels;
  };
  return path.Mapped([&](Point point) { return Point{snap(point.x, scale.x), snap(point.y, scale.y)}; });
}

double WidthOnPixels(double width, const PixelScale& scale) {
  return std::max(std::round(width * scale.x), 1.0) / scale.x;
}

}  // namespace plotsmith::render

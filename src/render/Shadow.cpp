#include "render/Shadow.h"

namespace plotsmith::render {

Path Shadow::Cast(const Path& shape) const {
  const Rect bounds = shape.Bounds();
  const Point kept{bounds.left + fixed.x * bounds.width, bounds.top + fixed.y * bounds.height};
  const auto at = [&](Point point) {
    const double x = point.x - kept.x, y = point.y - kept.y;
    return Point{kept.x + scaleX * x + skewX * y + offset.x, kept.y + skewY * x + scaleY * y + offset.y};
  };
  Path shadow;
  for (const PathStep& step : shape.Steps()) {
    switch (step.kind) {
      case PathStep::Kind::kMove:
        shadow.MoveTo(at(step.to));
        break;
      case PathStep::Kind::kLine:
        shadow.LineTo(at(step.to));
        break;
      case PathStep::Kind::kCurve:
        shadow.CurveTo(at(step.control1), at(step.control2), at(step.to));
        break;
      case PathStep::Kind::kClose:
        shadow.Close();
        break;
    }
  }
  return shadow;
}

}  // namespace plotsmith::render

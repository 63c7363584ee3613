#include "render/Shadow.h"

namespace plotsmith::render {

Path Shadow::Cast(const Path& shape) const {
  const Rect bounds = shape.Bounds();
  const Point kept{bounds.left + fixed.x * bounds.width, bounds.top + fixed.y * bounds.height};
  return shape.Mapped([&](Point point) {
    const double x = point.x - kept.x, y = point.y - kept.y;
    return Point{kept.x + scaleX * x + skewX * y + offset.x, kept.y + skewY * x + scaleY * y + offset.y};
  });
}

}  // namespace plotsmith::render

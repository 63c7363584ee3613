#include "render/fills/GradientGeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace plotsmith::render {

GradientLine LineOf(const GradientFill& gradient, const Rect& bounds) {
  const double angle = gradient.angle * std::numbers::pi / 180;
  const double across = std::cos(angle), down = std::sin(angle);
  const double reach = (bounds.width * std::abs(across) + bounds.height * std::abs(down)) / 2;
  const Point center = bounds.Center();
  return {{center.x - reach * across, center.y - reach * down},
          {center.x + reach * across, center.y + reach * down}};
}

double UnitRadiusOf(const GradientFill& gradient) {
  return std::hypot(std::max(gradient.focus.x, 1 - gradient.focus.x),
                    std::max(gradient.focus.y, 1 - gradient.focus.y));
}

}  // namespace plotsmith::render

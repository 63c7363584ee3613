#include "render/fills/LitFill.h"

#include <algorithm>
#include <cmath>

namespace plotsmith::render {

Color Lit(const Color& color, double light) {
  const auto channel = [&](std::uint8_t value) {
    return static_cast<std::uint8_t>(std::lround(std::clamp(value * light, 0.0, 255.0)));
  };
  return {channel(color.red), channel(color.green), channel(color.blue), color.alpha};
}

Fill Lit(const Fill& fill, double light) {
  Fill lit = fill;
  if (auto* solid = std::get_if<SolidFill>(&lit)) {
    solid->color = Lit(solid->color, light);
  } else if (auto* gradient = std::get_if<GradientFill>(&lit)) {
    for (GradientStop& stop : gradient->stops) stop.color = Lit(stop.color, light);
  } else if (auto* pattern = std::get_if<PatternFill>(&lit)) {
    pattern->foreground = Lit(pattern->foreground, light);
    pattern->background = Lit(pattern->background, light);
  }
  return lit;
}

Stroke SeamOf(const Fill& fill) {
  constexpr double kWidth = 0.3;  // points
  Stroke seam;
  seam.color = MainColor(fill);
  if (seam.color.alpha == 1 && !std::holds_alternative<PatternFill>(fill)) seam.width = kWidth;
  return seam;
}

Color MainColor(const Fill& fill) {
  if (const auto* solid = std::get_if<SolidFill>(&fill)) return solid->color;
  if (const auto* pattern = std::get_if<PatternFill>(&fill)) return pattern->background;
  const auto* gradient = std::get_if<GradientFill>(&fill);
  return gradient != nullptr && !gradient->stops.empty() ? gradient->stops.front().color
                                                         : Color{255, 255, 255, 0};
}

}  // namespace plotsmith::render

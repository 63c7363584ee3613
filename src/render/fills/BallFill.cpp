#include "render/fills/BallFill.h"

#include <cmath>

#include "render/fills/LitFill.h"

namespace plotsmith::render {
namespace {

constexpr double kHighlight = 0.65;  // share of white at the brightest point
constexpr double kShadow = 0.6;      // brightness at the darkest edge

Color Towards(const Color& color, std::uint8_t level, double share) {
  const auto channel = [&](std::uint8_t value) {
    return static_cast<std::uint8_t>(std::lround(value + (level - value) * share));
  };
  return {channel(color.red), channel(color.green), channel(color.blue), color.alpha};
}

}  // namespace

Fill AsBall(const Fill& fill) {
  const auto* solid = std::get_if<SolidFill>(&fill);
  if (solid == nullptr) return fill;
  GradientFill ball;
  ball.radial = true;
  ball.focus = {0.35, 0.3};
  // The farthest point of the circle is three quarters of the way from the focus to the farthest corner.
  ball.stops = {
      {0, Towards(solid->color, 255, kHighlight)}, {0.3, solid->color}, {0.8, Lit(solid->color, kShadow)}};
  return ball;
}

}  // namespace plotsmith::render

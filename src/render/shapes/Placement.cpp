#include "render/shapes/Placement.h"

#include <cmath>
#include <numbers>

namespace plotsmith::render {

Placement Placement::Turned(Point center, double degrees, const Flip& flip) const {
  const double angle = degrees * std::numbers::pi / 180;
  const double cosine = std::cos(angle), sine = std::sin(angle);
  const double mirrorX = flip.horizontal ? -1 : 1, mirrorY = flip.vertical ? -1 : 1;
  const double xx = cosine * mirrorX, xy = -sine * mirrorY, yx = sine * mirrorX, yy = cosine * mirrorY;
  const double x0 = center.x - xx * center.x - xy * center.y;
  const double y0 = center.y - yx * center.x - yy * center.y;
  Placement inner;
  inner.xx_ = xx_ * xx + xy_ * yx;
  inner.xy_ = xx_ * xy + xy_ * yy;
  inner.yx_ = yx_ * xx + yy_ * yx;
  inner.yy_ = yx_ * xy + yy_ * yy;
  inner.x0_ = xx_ * x0 + xy_ * y0 + x0_;
  inner.y0_ = yx_ * x0 + yy_ * y0 + y0_;
  // A text is rotated with its shape, and is upside down in a shape that is mirrored vertically.
  inner.rotation_ = rotation_ + degrees + (flip.vertical ? 180 : 0);
  return inner;
}

Point Placement::Map(Point point) const {
  return {xx_ * point.x + xy_ * point.y + x0_, yx_ * point.x + yy_ * point.y + y0_};
}

Path Placement::Map(const Path& path) const {
  return path.Mapped([this](Point point) { return Map(point); });
}

}  // namespace plotsmith::render

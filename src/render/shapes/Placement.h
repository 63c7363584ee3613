#pragma once

#include "render/Drawing.h"

namespace plotsmith::render {

/// The axes along which a shape is mirrored.
struct Flip {
  bool horizontal = false;  ///< left and right are exchanged
  bool vertical = false;    ///< top and bottom are exchanged
};

/// How a shape, and the groups around it, are turned and mirrored.
class Placement {
 public:
  /// Inside of this one: first turned clockwise about a point, and before that mirrored there.
  Placement Turned(Point center, double degrees, const Flip& flip = {}) const;

  Point Map(Point point) const;
  Path Map(const Path& path) const;
  /// By how much a text that isn't mirrored is turned, in degrees clockwise.
  double Rotation() const { return rotation_; }

 private:
  // x' = xx * x + xy * y + x0, and so on
  double xx_ = 1, xy_ = 0, yx_ = 0, yy_ = 1, x0_ = 0, y0_ = 0;
  double rotation_ = 0;
};

}  // namespace plotsmith::render

#pragma once

#include "render/Drawing.h"

namespace plotsmith::render {

/// The axes along which a shape is mirrored.
struct Flip {
  bool horizontal = false;  ///< Whether left and right are exchanged.
  bool vertical = false;    ///< Whether top and bottom are exchanged.
};

/// The rotations and reflections of a shape and of the groups around it.
class Placement {
 public:
  /// Returns the placement of a shape inside of this one. The shape is mirrored, and then rotated clockwise
  /// about `center`.
  Placement Turned(Point center, double degrees, const Flip& flip = {}) const;

  /// Returns the position of a point of the shape on the picture.
  Point Map(Point point) const;
  /// Returns a path of the shape as it is on the picture.
  Path Map(const Path& path) const;
  /// Returns the rotation of the shape's text in degrees clockwise. Texts aren't mirrored.
  double Rotation() const { return rotation_; }

 private:
  // x' = xx * x + xy * y + x0 and y' = yx * x + yy * y + y0
  double xx_ = 1, xy_ = 0, yx_ = 0, yy_ = 1, x0_ = 0, y0_ = 0;
  double rotation_ = 0;
};

}  // namespace plotsmith::render

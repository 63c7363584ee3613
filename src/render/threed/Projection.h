#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "render/Drawing.h"
#include "render/threed/View.h"

namespace plotsmith::render {

/// A position in the box of a chart in 3-D. The origin is the front bottom left corner of the box before it
/// is rotated. X grows to the right, Y upwards and Z to the back.
struct Point3 {
  /// The distances from the origin, in the unit of the box.
  double x = 0, y = 0, z = 0;

  bool operator==(const Point3&) const = default;
};

/// The size of the box, in a unit that the projection chooses.
struct Box {
  /// The extents along X, Y and Z.
  double width = 1, height = 1, depth = 1;
};

/// The proportions of the box. The category axis is parallel to its width, or to its height for horizontal
/// bars.
struct BoxShape {
  double depth = 1;    ///< The depth as a share of the length of the category axis.
  bool lying = false;  ///< Whether the chart has horizontal bars.
};

/// Converts positions in the box to points on the picture.
class Projection {
 public:
  /// Fits a box into the rectangle `room`. The box fills the rectangle. If the view sets its height, it is
  /// centred instead.
  Projection(const View& view, const BoxShape& shape, const Rect& room);

  /// The size of the box.
  const Box& Extent() const { return box_; }
  /// Returns a position in the box from fractions of its size.
  Point3 Place(double x, double y, double z) const;
  /// Returns the point on the picture for a position in the box.
  Point Project(const Point3& place) const;
  /// Returns the position of the viewer. In a parallel projection, it is far away.
  Point3 Eye() const;
  /// Returns true if the viewer sees the outside of a plane face. Seen from outside, the corners are in
  /// counter-clockwise order.
  bool Shows(std::span<const Point3> corners) const;

 private:
  void FillSpace(const BoxShape& shape, const Rect& room);
  void FindShape(const BoxShape& shape, const Rect& room);
  void SetShape(const BoxShape& shape, double heightOfWidth);
  void Center(const Rect& room);
  Point Flat(const Point3& place) const;
  Rect FlatBounds() const;

  bool oblique_ = false;
  double sinRotation_ = 0, cosRotation_ = 1, sinElevation_ = 0, cosElevation_ = 1;
  double side_ = 1;  ///< -1 for a view from behind with axes at right angles, otherwise 1.
  /// The distance of the viewer from the middle of a box with a diagonal of 1. 0 means a parallel projection.
  double distance_ = 0;
  Box box_;
  double scale_ = 1;
  Point origin_;
};

/// Returns the painting order of parts along an axis, as indices from 0. `middles` are the positions of the
/// parts on the axis, and `eye` is the position of the viewer on it.
std::vector<std::size_t> BackToFront(std::span<const double> middles, double eye);

}  // namespace plotsmith::render

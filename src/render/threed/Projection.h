#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "render/Drawing.h"
#include "render/threed/View.h"

namespace plotsmith::render {

/// A place in the box of a chart in 3-D. The origin is the front bottom left corner of the unturned box; x
/// grows to the right, y upwards and z to the back.
struct Point3 {
  double x = 0, y = 0, z = 0;

  bool operator==(const Point3&) const = default;
};

/// The extents of the box, in a unit that the projection chooses.
struct Box {
  double width = 1, height = 1, depth = 1;
};

/// How deep the box is. The category axis is along its width, or along its height for horizontal bars.
struct BoxShape {
  double depth = 1;    ///< as a share of the extent of the category axis
  bool lying = false;  ///< for horizontal bars
};

/// Converts places in the box to places on the picture.
class Projection {
 public:
  /// Fits a box into a room. It fills the room unless the view sets its height; in that case it is centred.
  Projection(const View& view, const BoxShape& shape, const Rect& room);

  /// The extents of the box.
  const Box& Extent() const { return box_; }
  /// Returns a place in the box from fractions of its extents.
  Point3 Place(double x, double y, double z) const;
  /// Returns where a place of the box is on the picture.
  Point Project(const Point3& place) const;
  /// Returns the place of the viewer. It is far away if the projection is parallel.
  Point3 Eye() const;
  /// Returns whether the viewer sees the outside of a plane face. Seen from outside, its corners go
  /// counter-clockwise.
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
  double side_ = 1;  ///< -1 for a view from behind with axes at right angles
  /// The distance of the viewer from the middle of a box with a diagonal of 1; 0 is a parallel projection.
  double distance_ = 0;
  Box box_;
  double scale_ = 1;
  Point origin_;
};

/// Returns the painting order of parts that are beside each other along an axis, by their numbers from 0.
/// `middles` are their places on the axis, and `eye` is the place of the viewer on it.
std::vector<std::size_t> BackToFront(std::span<const double> middles, double eye);

}  // namespace plotsmith::render

#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "render/Drawing.h"
#include "render/threed/View.h"

namespace plotsmith::render {

/// A place in the box that a chart in 3-D fills: x to the right, y up, z to the back, from the corner that is
/// in front at the bottom left when nothing is turned.
struct Point3 {
  double x = 0, y = 0, z = 0;

  bool operator==(const Point3&) const = default;
};

struct Box {
  double width = 1, height = 1, depth = 1;
};

/// How deep a chart is: `depth` is the share of the extent of the category axis, which is the width of the
/// box, or its height for lying bars.
struct BoxShape {
  double depth = 1;
  bool lying = false;
};

/// Where the places of a box are on the picture.
class Projection {
 public:
  /// Fits a box into a room. It fills the room unless the view says how high it is; then it is centred.
  Projection(const View& view, const BoxShape& shape, const Rect& room);

  const Box& Extent() const { return box_; }
  /// A place by fractions of the box's extents.
  Point3 Place(double x, double y, double z) const;
  Point Project(const Point3& place) const;
  /// Where the viewer is; far away where all rays are parallel.
  Point3 Eye() const;
  /// Whether the viewer sees a plane face, whose corners go counter-clockwise for those who look at it from
  /// outside.
  bool Shows(std::span<const Point3> corners) const;

 private:
  void FillRoom(const BoxShape& shape, const Rect& room);
  void FindShape(const BoxShape& shape, const Rect& room);
  void SetShape(const BoxShape& shape, double heightOfWidth);
  void Center(const Rect& room);
  Point Flat(const Point3& place) const;
  Rect FlatBounds() const;

  bool oblique_ = false;
  double sinRotation_ = 0, cosRotation_ = 1, sinElevation_ = 0, cosElevation_ = 1;
  double side_ = 1;  ///< -1 where one looks from behind along axes at right angles
  double distance_ =
      0;  ///< of the eye from the middle of a box with a diagonal of 1; 0 is without perspective
  Box box_;
  double scale_ = 1;
  Point origin_;
};

/// The order in which slices of a box across one of its axes are painted, those that the others may cover
/// first. `middles` are their places along the axis, `eye` that of the viewer.
std::vector<std::size_t> BackToFront(std::span<const double> middles, double eye);

}  // namespace plotsmith::render

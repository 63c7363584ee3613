#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "render/Canvas.h"
#include "render/threed/Projection.h"

namespace plotsmith::render {

/// The format of a body and the element that it shows. The front face has the role of the tag; the other
/// faces have kSide.
struct Look {
  /// The element that the faces show.
  Tag tag;
  /// The fill of a face in full light. Other faces are darker.
  Fill fill;
  /// The line along all edges.
  Stroke stroke;
};

/// The corners of a plane face. Seen from outside, they are in counter-clockwise order.
using Face = std::vector<Point3>;

/// Paints the visible faces of a convex body. The brightness of a face depends on its direction.
void AddFaces(Canvas& canvas, const Projection& projection, const std::vector<Face>& faces, const Look& look);

/// Paints a face that is visible from both sides.
void AddSheet(Canvas& canvas, const Projection& projection, const Face& face, const Look& look);

/// Returns the faces of a block between two opposite corners. `from` has the lower coordinates.
std::vector<Face> BlockFaces(const Point3& from, const Point3& to);

/// The form of bars in 3-D (ST_Shape).
enum class BarForm : std::uint8_t { kBox, kCylinder, kCone, kPyramid };
/// The form of bars, and the position of the tip.
struct BarShape {
  /// The form of the body.
  BarForm form = BarForm::kBox;
  /// Whether the tip is at the greatest value of the chart ("coneToMax"). Each bar is then cut off at its own
  /// value.
  bool toGreatest = false;
};
/// Returns the form for a value of ST_Shape. It is a box for an unknown value.
BarShape ReadBarShape(std::string_view name);

/// The space of a bar.
struct BarSpace {
  /// Two opposite corners. `from` has the lower coordinates.
  Point3 from, to;
  /// Whether the bar is horizontal.
  bool alongX = false;
  /// Whether the value is below the base.
  bool backwards = false;
  /// The widths of the bar at its base and at its end, as shares of the width of the space.
  double baseWidth = 1, endWidth = 1;
};
/// Paints a bar of a form.
void AddBar(Canvas& canvas, const Projection& projection, const BarSpace& space, BarForm form,
            const Look& look);

}  // namespace plotsmith::render

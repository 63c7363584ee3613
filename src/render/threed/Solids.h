#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "render/Canvas.h"
#include "render/threed/Projection.h"

namespace plotsmith::render {

/// How a body looks, and what it shows. The foremost face has the role of the tag; the others have kSide.
struct Look {
  Tag tag;
  Fill fill;
  Stroke stroke;
};

/// The corners of a plane face. Seen from outside, they go counter-clockwise.
using Face = std::vector<Point3>;

/// Paints the visible faces of a convex body, each lit by its direction.
void AddFaces(Canvas& canvas, const Projection& projection, const std::vector<Face>& faces, const Look& look);

/// Paints a face that is visible from both sides.
void AddSheet(Canvas& canvas, const Projection& projection, const Face& face, const Look& look);

/// Returns the faces of a block between two opposite corners. `from` has the lower coordinates.
std::vector<Face> BlockFaces(const Point3& from, const Point3& to);

/// The form of bars in 3-D (ST_Shape).
enum class BarForm : std::uint8_t { kBox, kCylinder, kCone, kPyramid };
/// The form of bars, and where its tip is.
struct BarShape {
  BarForm form = BarForm::kBox;
  /// The tip is at the greatest value of the chart, and the form is cut off at the bar's own value
  /// ("coneToMax").
  bool toGreatest = false;
};
/// Returns the form of a name of ST_Shape. Unknown names are boxes.
BarShape ReadBarShape(std::string_view name);

/// The space of a bar.
struct BarSpace {
  Point3 from, to;                     ///< opposite corners; `from` has the lower coordinates
  bool alongX = false;                 ///< the bar is horizontal
  bool backwards = false;              ///< the value is below the base
  double baseWidth = 1, endWidth = 1;  ///< shares of the width of the space
};
/// Paints a bar of a form.
void AddBar(Canvas& canvas, const Projection& projection, const BarSpace& space, BarForm form,
            const Look& look);

}  // namespace plotsmith::render

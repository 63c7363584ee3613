#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "render/Canvas.h"
#include "render/threed/Projection.h"

namespace plotsmith::render {

/// How a body looks, and what it belongs to. The face that looks to the front most has the tag's role, all
/// others are kSide.
struct Look {
  Tag tag;
  Fill fill;
  Stroke stroke;
};

/// A plane face; its corners go counter-clockwise for those who look at it from outside.
using Face = std::vector<Point3>;

/// Paints those faces of a convex body that the viewer sees, each lit by its direction.
void AddFaces(Canvas& canvas, const Projection& projection, const std::vector<Face>& faces, const Look& look);

/// Paints a face whichever of its sides is seen, as that of a thin sheet.
void AddSheet(Canvas& canvas, const Projection& projection, const Face& face, const Look& look);

/// A block between two opposite corners, the lesser one first.
std::vector<Face> BlockFaces(const Point3& from, const Point3& to);

/// The form of bars in 3-D (ST_Shape).
enum class BarForm : std::uint8_t { kBox, kCylinder, kCone, kPyramid };
/// Forms up to the greatest value ("coneToMax") are cut off at the bar's own value.
struct BarShape {
  BarForm form = BarForm::kBox;
  bool toGreatest = false;
};
BarShape ReadBarShape(std::string_view name);

/// The space of a bar, which grows along x or y.
struct BarSpace {
  Point3 from, to;  ///< lesser corner first
  bool alongX = false;
  bool backwards = false;              ///< a value below the base
  double baseWidth = 1, endWidth = 1;  ///< shares of the space's cross-section
};
void AddBar(Canvas& canvas, const Projection& projection, const BarSpace& space, BarForm form,
            const Look& look);

}  // namespace plotsmith::render

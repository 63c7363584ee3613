#include "render/threed/Shading.h"

#include <cmath>

namespace plotsmith::render {

double LightOf(const Point3& normal) {
  // The squares of the components add up to 1, so the brightness changes smoothly on round bodies.
  const double vertical = normal.y > 0 ? kTopLight : kBottomLight;
  return normal.z * normal.z * kFrontLight + normal.x * normal.x * kSideLight +
         normal.y * normal.y * vertical;
}

Point3 NormalOf(std::span<const Point3> corners) {
  // This is Newell's method, which allows several corners on a line.
  Point3 normal;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const Point3 &a = corners[i], &b = corners[(i + 1) % corners.size()];
    normal.x -= (a.y - b.y) * (a.z + b.z);
    normal.y -= (a.z - b.z) * (a.x + b.x);
    normal.z -= (a.x - b.x) * (a.y + b.y);
  }
  const double length = std::hypot(normal.x, normal.y, normal.z);
  if (!(length > 0)) return {0, 0, -1};
  return {normal.x / length, normal.y / length, normal.z / length};
}

}  // namespace plotsmith::render

#include "render/plot/Curves.h"

#include <cmath>

namespace plotsmith::render {

std::vector<Point> Thinned(const std::vector<Point>& points) {
  constexpr std::size_t kDense = 2000;
  constexpr double kColumn = 0.5;  // points; less than a pixel
  if (points.size() <= kDense) return points;
  std::vector<Point> kept;
  for (std::size_t from = 0; from < points.size();) {
    std::size_t end = from + 1, least = from, greatest = from;
    while (end < points.size() && std::abs(points[end].x - points[from].x) < kColumn) {
      if (points[end].y < points[least].y) least = end;
      if (points[end].y > points[greatest].y) greatest = end;
      ++end;
    }
    kept.push_back(points[from]);
    if (least > greatest) std::swap(least, greatest);
    if (least > from) kept.push_back(points[least]);
    if (greatest > least) kept.push_back(points[greatest]);
    if (end - 1 > greatest) kept.push_back(points[end - 1]);
    from = end;
  }
  return kept;
}

void AddCurve(Path& path, const std::vector<Point>& all, bool smooth) {
  if (all.empty()) return;
  const std::vector<Point> points = Thinned(all);
  path.MoveTo(points.front());
  for (std::size_t i = 1; i < points.size(); ++i) {
    if (!smooth) {
      path.LineTo(points[i]);
      continue;
    }
    const Point& a = points[i - 1];
    const Point& b = points[i];
    const Point& before = i >= 2 ? points[i - 2] : a;
    const Point& behind = i + 1 < points.size() ? points[i + 1] : b;
    path.CurveTo({a.x + (b.x - before.x) / 6, a.y + (b.y - before.y) / 6},
                 {b.x - (behind.x - a.x) / 6, b.y - (behind.y - a.y) / 6}, b);
  }
}

}  // namespace plotsmith::render

#include "render/threed/Solids.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "render/fills/LitFill.h"
#include "render/threed/Shading.h"

namespace plotsmith::render {
namespace {

constexpr std::size_t kRingCorners = 32;

/// The two ends of a bar.
enum class End : std::uint8_t { kBase, kTip };

void AddPolygon(Canvas& canvas, const std::vector<Point>& corners, Tag tag, const Fill& lit,
                const Look& look) {
  canvas.Add(tag, Path().AddPolygon(corners), lit, look.stroke.width > 0 ? look.stroke : SeamOf(lit));
}

std::vector<Point> Projected(const Projection& projection, const Face& face) {
  std::vector<Point> corners;
  corners.reserve(face.size());
  for (const Point3& corner : face) corners.push_back(projection.Project(corner));
  return corners;
}

/// Returns the convex outline around points (Andrew's monotone chain).
std::vector<Point> HullOf(std::vector<Point> points) {
  std::sort(points.begin(), points.end(),
            [](Point a, Point b) { return a.x != b.x ? a.x < b.x : a.y < b.y; });
  const auto turnsRight = [](Point a, Point b, Point c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x) <= 0;
  };
  std::vector<Point> hull;
  for (int half = 0; half < 2; ++half) {
    const std::size_t start = hull.size();
    for (const Point point : points) {
      while (hull.size() >= start + 2 && turnsRight(hull[hull.size() - 2], hull.back(), point))
        hull.pop_back();
      hull.push_back(point);
    }
    hull.pop_back();
    std::reverse(points.begin(), points.end());
  }
  return hull;
}

/// Returns a point of a bar by its shares: along the bar from base to tip, across it, and from front to back.
Point3 OnBar(const BarSpace& space, double along, double across, double back) {
  const double width = space.baseWidth + (space.endWidth - space.baseWidth) * along;
  const double way = space.backwards ? 1 - along : along;
  const auto between = [](double from, double to, double share) { return from + (to - from) * share; };
  const double sideways = 0.5 + (across - 0.5) * width,
               depth = between(space.from.z, space.to.z, 0.5 + (back - 0.5) * width);
  if (space.alongX) {
    return {between(space.from.x, space.to.x, way), between(space.from.y, space.to.y, sideways), depth};
  }
  return {between(space.from.x, space.to.x, sideways), between(space.from.y, space.to.y, way), depth};
}

/// Returns the cross-section at an end of a bar as a face.
Face CapOf(const BarSpace& space, std::span<const Point> outline, End end) {
  const bool atTip = end == End::kTip;
  Face cap;
  for (const Point point : outline) cap.push_back(OnBar(space, atTip ? 1 : 0, point.x, point.y));
  // The outline goes counter-clockwise, with Y to the back.
  if (atTip == (space.backwards != space.alongX)) std::reverse(cap.begin(), cap.end());
  return cap;
}

bool IsPoint(double width) { return width < 1e-6; }

void AddPyramid(Canvas& canvas, const Projection& projection, const BarSpace& space, const Look& look) {
  constexpr Point kSquare[] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
  const Face base = CapOf(space, kSquare, End::kBase), tip = CapOf(space, kSquare, End::kTip);
  std::vector<Face> faces = {base};
  if (!IsPoint(space.endWidth)) faces.push_back(tip);
  for (std::size_t i = 0; i < base.size(); ++i) {
    const std::size_t next = (i + 1) % base.size();
    // The corners of the tip are in the opposite order to those of the base.
    Face side = {base[next], base[i], tip[tip.size() - 1 - i]};
    if (!IsPoint(space.endWidth)) side.push_back(tip[tip.size() - 1 - next]);
    faces.push_back(std::move(side));
  }
  AddFaces(canvas, projection, faces, look);
}

/// Returns the fill of a round body, which is lit from one side to the other.
Fill Rounded(const Fill& fill, bool alongX) {
  const auto* solid = std::get_if<SolidFill>(&fill);
  if (solid == nullptr) return fill;
  GradientFill gradient;
  gradient.angle = alongX ? 90 : 0;
  gradient.stops = {{0, Lit(solid->color, alongX ? kTopLight : kSideLight)},
                    {0.4, Lit(solid->color, kFrontLight)},
                    {1, Lit(solid->color, kBottomLight)}};
  return gradient;
}

void AddRound(Canvas& canvas, const Projection& projection, const BarSpace& space, const Look& look) {
  std::vector<Point> ring;
  for (std::size_t i = 0; i < kRingCorners; ++i) {
    const double angle = 2 * std::numbers::pi * static_cast<double>(i) / kRingCorners;
    ring.push_back({0.5 + std::cos(angle) / 2, 0.5 + std::sin(angle) / 2});
  }
  std::vector<Point> all;
  for (const End end : {End::kBase, End::kTip}) {
    for (const Point corner : Projected(projection, CapOf(space, ring, end))) all.push_back(corner);
  }
  AddPolygon(canvas, HullOf(std::move(all)), look.tag, Rounded(look.fill, space.alongX), look);
  for (const End end : {End::kBase, End::kTip}) {
    const Face cap = CapOf(space, ring, end);
    if (IsPoint(end == End::kTip ? space.endWidth : space.baseWidth) || !projection.Shows(cap)) continue;
    Tag side = look.tag;
    side.role = Role::kSide;
    AddPolygon(canvas, Projected(projection, cap), side, Lit(look.fill, LightOf(NormalOf(cap))), look);
  }
}

}  // namespace

void AddFaces(Canvas& canvas, const Projection& projection, const std::vector<Face>& faces,
              const Look& look) {
  std::vector<const Face*> shown;
  for (const Face& face : faces) {
    if (face.size() >= 3 && projection.Shows(face)) shown.push_back(&face);
  }
  const auto forward = [](const Face* face) { return std::abs(NormalOf(*face).z); };
  const auto front = std::max_element(shown.begin(), shown.end(),
                                      [&](const Face* a, const Face* b) { return forward(a) < forward(b); });
  for (auto face = shown.begin(); face != shown.end(); ++face) {
    Tag tag = look.tag;
    if (face != front) tag.role = Role::kSide;
    AddPolygon(canvas, Projected(projection, **face), tag, Lit(look.fill, LightOf(NormalOf(**face))), look);
  }
}

void AddSheet(Canvas& canvas, const Projection& projection, const Face& face, const Look& look) {
  Point3 normal = NormalOf(face);
  if (!projection.Shows(face)) normal = {-normal.x, -normal.y, -normal.z};
  AddPolygon(canvas, Projected(projection, face), look.tag, Lit(look.fill, LightOf(normal)), look);
}

std::vector<Face> BlockFaces(const Point3& from, const Point3& to) {
  const auto corner = [&](bool right, bool top, bool back) {
    return Point3{right ? to.x : from.x, top ? to.y : from.y, back ? to.z : from.z};
  };
  return {
      {corner(0, 0, 1), corner(0, 0, 0), corner(0, 1, 0), corner(0, 1, 1)},
      {corner(1, 0, 0), corner(1, 0, 1), corner(1, 1, 1), corner(1, 1, 0)},
      {corner(0, 0, 1), corner(1, 0, 1), corner(1, 0, 0), corner(0, 0, 0)},
      {corner(0, 1, 0), corner(1, 1, 0), corner(1, 1, 1), corner(0, 1, 1)},
      {corner(1, 0, 1), corner(0, 0, 1), corner(0, 1, 1), corner(1, 1, 1)},
      {corner(0, 0, 0), corner(1, 0, 0), corner(1, 1, 0), corner(0, 1, 0)},
  };
}

BarShape ReadBarShape(std::string_view name) {
  BarShape shape;
  shape.toGreatest = name.ends_with("ToMax");
  if (name == "cylinder") shape.form = BarForm::kCylinder;
  if (name.starts_with("cone")) shape.form = BarForm::kCone;
  if (name.starts_with("pyramid")) shape.form = BarForm::kPyramid;
  return shape;
}

void AddBar(Canvas& canvas, const Projection& projection, const BarSpace& space, BarForm form,
            const Look& look) {
  if (form == BarForm::kBox) {
    AddFaces(canvas, projection, BlockFaces(space.from, space.to), look);
  } else if (form == BarForm::kPyramid) {
    AddPyramid(canvas, projection, space, look);
  } else {
    AddRound(canvas, projection, space, look);
  }
}

}  // namespace plotsmith::render

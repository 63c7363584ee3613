#include "pages/pictures/Canvas.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace plotsmith::pictures {
namespace {

constexpr Rgb kWhitePaint{255, 255, 255};
constexpr Rgb kBlackPaint{0, 0, 0};
/// The direction of the light, as a unit vector.
constexpr Point kLight{-0.45, -0.89};
/// Adjacent faces overlap by half of this, so that no background is visible between them.
constexpr double kSeam = 0.3;  // points
double Dot(Point a, Point b) { return a.x * b.x + a.y * b.y; }

std::vector<Point> Corners(const Rectangle& r) {
  return {{r.dLeft, r.dTop}, {r.dRight, r.dTop}, {r.dRight, r.dBottom}, {r.dLeft, r.dBottom}};
}

/// Returns twice the area, which is positive if the corners are in clockwise order in the picture.
double SignedArea(const std::vector<Point>& aPoints) {
  double dSum = 0;
  for (std::size_t i = 0; i < aPoints.size(); ++i) {
    const Point a = aPoints[i], b = aPoints[(i + 1) % aPoints.size()];
    dSum += a.x * b.y - b.x * a.y;
  }
  return dSum;
}

/// An edge of a prism's face with a visible side.
struct VisibleEdge {
  Point oFrom, oTo;
  double dLight;     ///< The cosine of the angle between the light and the side.
  double dNearness;  ///< Larger for sides in front.
};

std::vector<VisibleEdge> VisibleEdges(const std::vector<Point>& aFace, Point oDepth) {
  const double dTurn = SignedArea(aFace) < 0 ? -1 : 1;
  std::vector<VisibleEdge> aEdges;
  for (std::size_t i = 0; i < aFace.size(); ++i) {
    const Point a = aFace[i], b = aFace[(i + 1) % aFace.size()];
    const double dLength = std::hypot(b.x - a.x, b.y - a.y);
    if (dLength == 0) continue;
    const Point oNormal{(b.y - a.y) * dTurn / dLength, (a.x - b.x) * dTurn / dLength};
    if (Dot(oNormal, oDepth) <= 0) continue;
    aEdges.push_back({a, b, Dot(oNormal, kLight), Dot((a + b) * 0.5, oDepth)});
  }
  std::ranges::stable_sort(aEdges, {}, &VisibleEdge::dNearness);
  return aEdges;
}

}  // namespace

Rgb Mix(Rgb oFrom, Rgb oTo, double dShare) {
  const auto mix = [&](std::uint8_t from, std::uint8_t to) {
    return static_cast<std::uint8_t>(std::lround(from + (to - from) * dShare));
  };
  return {mix(oFrom.red, oTo.red), mix(oFrom.green, oTo.green), mix(oFrom.blue, oTo.blue)};
}

Rgb Shade(Rgb oColor, double dAmount) {
  return dAmount < 0 ? Mix(oColor, kBlackPaint, -dAmount) : Mix(oColor, kWhitePaint, dAmount);
}

void Canvas::FillPolygon(std::vector<Point> aPoints, Rgb oFill, std::optional<Outline> oOutline) {
  oPicture_.aShapes.push_back({Polygon{std::move(aPoints)}, oFill, oOutline});
}

void Canvas::FillRectangle(const Rectangle& oRectangle, Rgb oFill, std::optional<Outline> oOutline) {
  FillPolygon(Corners(oRectangle), oFill, oOutline);
}

void Canvas::FillCircle(Point oCenter, double dRadius, Rgb oFill, std::optional<Outline> oOutline) {
  oPicture_.aShapes.push_back({Ellipse{oCenter, dRadius, dRadius}, oFill, oOutline});
}

void Canvas::DrawLine(Point oFrom, Point oTo, double dWidth, Rgb oColor) {
  const double dScale = dWidth / 2 / std::hypot(oTo.x - oFrom.x, oTo.y - oFrom.y);
  const Point oAside{(oFrom.y - oTo.y) * dScale, (oTo.x - oFrom.x) * dScale};
  const Point oBack = oAside * -1;
  FillPolygon({oFrom + oAside, oTo + oAside, oTo + oBack, oFrom + oBack}, oColor);
}

void Canvas::FillPrism(const std::vector<Point>& aFace, Point oDepth, Rgb oFill) {
  for (const VisibleEdge& edge : VisibleEdges(aFace, oDepth)) {
    const Rgb oSide = Shade(oFill, 0.4 * edge.dLight - 0.07);
    FillPolygon({edge.oFrom, edge.oTo, edge.oTo + oDepth, edge.oFrom + oDepth}, oSide, Outline{oSide, kSeam});
  }
  FillPolygon(aFace, oFill, Outline{oFill, kSeam});
}

void Canvas::FillBox(const Rectangle& oFace, Point oDepth, Rgb oFill) {
  FillPrism(Corners(oFace), oDepth, oFill);
}

void Canvas::FillBall(Point oCenter, double dRadius, Rgb oFill) {
  // The rings go from the dark edge to the highlight. A large ball needs more rings, so that their edges stay
  // invisible.
  const int lRings = static_cast<int>(3.5 + dRadius / 2);
  for (int lRing = 0; lRing < lRings; ++lRing) {
    const double dInwards = static_cast<double>(lRing) / lRings;
    const Rgb oRing = Shade(oFill, -0.26 + 0.2 * dInwards + 0.7 * dInwards * dInwards);
    FillCircle(oCenter + kLight * (dRadius * 0.5 * dInwards), dRadius * (1 - dInwards), oRing);
  }
}

}  // namespace plotsmith::pictures

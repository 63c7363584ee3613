#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include "pages/pictures/Families.h"

namespace plotsmith::pictures {
namespace {

constexpr double kShares[] = {0.31, 0.27, 0.24, 0.18};
constexpr double kFlattening = 0.56;  // The ratio of height and width for a pie in 3-D.
constexpr double kHeight = 13;        // points
constexpr double kStep = std::numbers::pi / 20;
constexpr Rgb kGap{0xFF, 0xFF, 0xFF};

/// The circle of the slices, and the distance that each slice is moved outwards.
struct Disk {
  Point oCenter;
  double dRadiusX;
  double dRadiusY;
  double dMove;  ///< A share of the radius.

  /// Returns a point on the disk. `dRadius` is a share of the radius. The angle is in radians, clockwise from
  /// the right.
  Point At(double dAngle, double dRadius) const {
    return oCenter + Point{std::cos(dAngle) * dRadius * dRadiusX, std::sin(dAngle) * dRadius * dRadiusY};
  }
};

struct Slice {
  double dFrom;
  double dTo;
  Rgb oColor;
  double Middle() const { return (dFrom + dTo) / 2; }
};

/// Returns the slices in clockwise order from the top.
std::vector<Slice> CutSlices() {
  std::vector<Slice> aSlices;
  double dAngle = -std::numbers::pi / 2;
  for (const double dShare : kShares) {
    const double dEnd = dAngle + dShare * 2 * std::numbers::pi;
    aSlices.push_back({dAngle, dEnd, kSeriesColors[aSlices.size()]});
    dAngle = dEnd;
  }
  return aSlices;
}

std::vector<Point> SliceOutline(const Disk& oDisk, const Slice& oSlice) {
  const Point oMove = oDisk.At(oSlice.Middle(), oDisk.dMove) + oDisk.oCenter * -1;
  std::vector<Point> aPoints = {oDisk.oCenter + oMove};
  const int lSteps = static_cast<int>(std::ceil((oSlice.dTo - oSlice.dFrom) / kStep));
  for (int i = 0; i <= lSteps; ++i) {
    aPoints.push_back(oDisk.At(std::lerp(oSlice.dFrom, oSlice.dTo, static_cast<double>(i) / lSteps), 1) +
                      oMove);
  }
  return aPoints;
}

}  // namespace

void DrawPie(Stage& oStage, Slices eSlices, Look eLook) {
  const bool b3D = eLook == Look::k3D;
  const Rectangle& oArea = oStage.oArea;
  Disk oDisk{{(oArea.dLeft + oArea.dRight) / 2, (oArea.dTop + oArea.dBottom) / 2}, 0, 0, 0};
  oDisk.dMove = eSlices == Slices::kExploded ? 0.16 : 0;
  const double dRoom = b3D ? (oArea.dRight - oArea.dLeft) / 2 : (oArea.dBottom - oArea.dTop) / 2;
  oDisk.dRadiusX = dRoom * 0.98 / (1 + oDisk.dMove);
  oDisk.dRadiusY = oDisk.dRadiusX * (b3D ? kFlattening : 1);
  if (b3D) oDisk.oCenter.y -= kHeight / 2;

  auto aSlices = CutSlices();
  // Sort from back to front.
  std::ranges::sort(aSlices, {}, [](const Slice& slice) { return std::sin(slice.Middle()); });
  for (const Slice& slice : aSlices) {
    const auto aOutline = SliceOutline(oDisk, slice);
    if (b3D) {
      oStage.oCanvas.FillPrism(aOutline, {0, kHeight}, slice.oColor);
    } else {
      oStage.oCanvas.FillPolygon(aOutline, slice.oColor, Outline{kGap, 0.8});
    }
  }
}

}  // namespace plotsmith::pictures

#include <algorithm>
#include <utility>
#include <vector>

#include "pages/pictures/Families.h"

namespace plotsmith::pictures {
namespace {

using Series = std::vector<double>;

/// Values by series and category, as shares of the value axis.
using Table = std::vector<Series>;

const Table kBars = {{0.42, 0.68, 0.54, 0.88}, {0.6, 0.46, 0.76, 0.64}, {0.3, 0.56, 0.4, 0.72}};
const Table kOneBar = {kBars[0]};
const Table kBarGroups = {{0.46, 0.7, 0.9}, {0.64, 0.5, 0.72}, {0.36, 0.58, 0.8}};
const Table kAreas = {
    {0.24, 0.16, 0.34, 0.22, 0.3}, {0.34, 0.52, 0.42, 0.58, 0.44}, {0.62, 0.74, 0.86, 0.68, 0.92}};
const Table kOneArea = {{0.34, 0.62, 0.48, 0.86, 0.7}};
/// The areas rise and fall alternately, so that each one is visible behind those in front of it.
const Table kAreaLanes = {
    {0.1, 0.16, 0.24, 0.36, 0.56}, {0.2, 0.42, 0.68, 0.46, 0.28}, {0.92, 0.78, 0.5, 0.66, 0.82}};

const Table& BarTable(Arrangement eArrangement) {
  if (eArrangement == Arrangement::kBasic) return kOneBar;
  return eArrangement == Arrangement::kCluster ? kBarGroups : kBars;
}

const Table& AreaTable(Arrangement eArrangement) {
  if (eArrangement == Arrangement::kBasic) return kOneArea;
  return eArrangement == Arrangement::kCluster ? kAreaLanes : kAreas;
}

/// The part of the value axis that a series covers in a category.
struct Extent {
  double dFrom = 0;
  double dTo = 0;
};

/// Returns the extents by series and category for an arrangement.
std::vector<std::vector<Extent>> Extents(const Table& aSeries, Arrangement eArrangement) {
  constexpr double kHighestStack = 0.94;
  const bool bStacked = eArrangement == Arrangement::kStack || eArrangement == Arrangement::kStack100;
  const std::size_t lCategories = aSeries[0].size();
  Series aTotals(lCategories, 0.0);
  for (const Series& values : aSeries) {
    for (std::size_t c = 0; c < lCategories; ++c) aTotals[c] += values[c];
  }
  const double dLargest = std::ranges::max(aTotals);
  std::vector<std::vector<Extent>> aExtents;
  Series aReached(lCategories, 0.0);
  for (const Series& values : aSeries) {
    auto& aRow = aExtents.emplace_back();
    for (std::size_t c = 0; c < lCategories; ++c) {
      const double dScale = !bStacked                             ? 1
                            : eArrangement == Arrangement::kStack ? kHighestStack / dLargest
                                                                  : 1 / aTotals[c];
      const double dFrom = aReached[c];
      aRow.push_back({dFrom, dFrom + values[c] * dScale});
      if (bStacked) aReached[c] = aRow.back().dTo;
    }
  }
  return aExtents;
}

/// Draws a bar in the middle of the plot's depth.
void DrawBar(Canvas& oCanvas, const Plot& oPlot, Rectangle oBar, Rgb oColor) {
  if (oPlot.oDepth == Point{}) {
    oCanvas.FillRectangle(oBar, oColor);
    return;
  }
  constexpr double kFront = 0.22, kThickness = 0.56;  // Shares of the depth.
  const Point oMove = oPlot.oDepth * kFront;
  oBar = {oBar.dLeft + oMove.x, oBar.dTop + oMove.y, oBar.dRight + oMove.x, oBar.dBottom + oMove.y};
  oCanvas.FillBox(oBar, oPlot.oDepth * kThickness, oColor);
}

/// Draws bars or columns. The order suits both: later ones are to the right of earlier ones or above them,
/// and so in front of their sides.
void DrawBars(Canvas& oCanvas, const Plot& oPlot, Arrangement eArrangement) {
  const Table& aSeries = BarTable(eArrangement);
  const auto aExtents = Extents(aSeries, eArrangement);
  const bool bSideBySide = eArrangement == Arrangement::kCluster;
  const std::size_t lSeries = aSeries.size(), lCategories = aSeries[0].size();
  const double dFilled = bSideBySide ? 0.78 : 0.58;  // The share of a category without the gap.
  const double dBar =
      dFilled / (bSideBySide ? static_cast<double>(lSeries) : 1) / static_cast<double>(lCategories);
  for (std::size_t c = 0; c < lCategories; ++c) {
    const double dMiddle = (static_cast<double>(c) + 0.5) / static_cast<double>(lCategories);
    DrawCategoryLabel(oCanvas, oPlot, dMiddle);
    const double dStart = dMiddle - dFilled / 2 / static_cast<double>(lCategories);
    for (std::size_t s = 0; s < lSeries; ++s) {
      const double dFrom = dStart + (bSideBySide ? static_cast<double>(s) * dBar : 0);
      const Extent& oExtent = aExtents[s][c];
      DrawBar(oCanvas, oPlot, oPlot.Between(dFrom, oExtent.dFrom, dFrom + dBar, oExtent.dTo),
              kSeriesColors[s]);
    }
  }
}

/// Returns the outline of a series: along its upper edge and back along its lower edge.
std::vector<Point> AreaOutline(const Plot& oPlot, const std::vector<Extent>& aExtents) {
  std::vector<Point> aPoints;
  const std::size_t lLast = aExtents.size() - 1;
  const auto share = [&](std::size_t c) { return static_cast<double>(c) / static_cast<double>(lLast); };
  for (std::size_t c = 0; c <= lLast; ++c) aPoints.push_back(oPlot.At(share(c), aExtents[c].dTo));
  const bool bOnAxis = std::ranges::all_of(aExtents, [](const Extent& e) { return e.dFrom == 0; });
  for (std::size_t c = lLast + 1; c-- > 0;) {
    if (bOnAxis && c != 0 && c != lLast) continue;  // The axis is straight, so its two ends are enough.
    aPoints.push_back(oPlot.At(share(c), aExtents[c].dFrom));
  }
  return aPoints;
}

/// Draws an area in one of several lanes in depth. Lane 0 is in front.
void DrawAreaInLane(Canvas& oCanvas, const Plot& oPlot, std::vector<Point> aOutline, std::size_t lLane,
                    std::size_t lLanes, Rgb oColor) {
  if (oPlot.oDepth == Point{}) {
    oCanvas.FillPolygon(std::move(aOutline), oColor);
    return;
  }
  constexpr double kGap = 0.18;  // The share of a lane before and behind the area.
  const Point oLane = oPlot.oDepth * (1 / static_cast<double>(lLanes));
  for (Point& point : aOutline) point = point + oLane * (static_cast<double>(lLane) + kGap);
  oCanvas.FillPrism(aOutline, oLane * (1 - 2 * kGap), oColor);
}

/// Draws the areas. Stacked areas share a lane and are drawn from the bottom; others have a lane each and are
/// drawn from the back.
void DrawAreas(Canvas& oCanvas, const Plot& oPlot, Arrangement eArrangement) {
  const Table& aSeries = AreaTable(eArrangement);
  const auto aExtents = Extents(aSeries, eArrangement);
  const bool bLanes = eArrangement == Arrangement::kCluster;
  const std::size_t lSeries = aSeries.size(), lLast = aSeries[0].size() - 1;
  for (std::size_t c = 0; c <= lLast; ++c) {
    DrawCategoryLabel(oCanvas, oPlot, static_cast<double>(c) / static_cast<double>(lLast));
  }
  for (std::size_t i = 0; i < lSeries; ++i) {
    const std::size_t s = bLanes ? lSeries - 1 - i : i;
    DrawAreaInLane(oCanvas, oPlot, AreaOutline(oPlot, aExtents[s]), bLanes ? s : 0, bLanes ? lSeries : 1,
                   kSeriesColors[s]);
  }
}

}  // namespace

void DrawAbc(Stage& oStage, AbcType eType, Arrangement eArrangement, Look eLook) {
  const Values eValues = eType == AbcType::kBar ? Values::kRightwards : Values::kUpwards;
  const Plot oPlot = MakePlot(oStage.oArea, eValues, eLook);
  DrawAxes(oStage.oCanvas, oPlot);
  if (eType == AbcType::kArea) {
    DrawAreas(oStage.oCanvas, oPlot, eArrangement);
  } else {
    DrawBars(oStage.oCanvas, oPlot, eArrangement);
  }
}

}  // namespace plotsmith::pictures

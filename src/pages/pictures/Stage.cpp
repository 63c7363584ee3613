#include "pages/pictures/Stage.h"

#include <algorithm>
#include <utility>

namespace plotsmith::pictures {
namespace {

constexpr Rgb kCard{0xFF, 0xFF, 0xFF};
constexpr Rgb kCardEdge{0xCB, 0xD2, 0xDC};
constexpr Rgb kAxis{0x7D, 0x88, 0x98};
constexpr Rgb kGrid{0xE1, 0xE6, 0xED};
constexpr Rgb kWallGrid{0xD3, 0xDA, 0xE4};
constexpr Rgb kBackWall{0xF3, 0xF6, 0xFA};
constexpr Rgb kSideWall{0xE7, 0xEC, 0xF2};
constexpr Rgb kFloor{0xDB, 0xE1, 0xEA};
constexpr Rgb kLabel{0xB4, 0xBD, 0xCA};
constexpr Rgb kTitle{0x6B, 0x76, 0x87};

constexpr Point kDepth{16, -11};
constexpr double kLabelHeight = 2;
constexpr double kLabelWidth = 5;
constexpr double kLabelGap = 3;  // The distance between an axis and the middle of its labels.
constexpr double kGridlines[] = {0.25, 0.5, 0.75, 1};

Canvas Card(double dWidth, double dHeight) {
  Canvas oCanvas(dWidth, dHeight);
  oCanvas.FillRectangle({0.5, 0.5, dWidth - 0.5, dHeight - 0.5}, kCard, Outline{kCardEdge, 1});
  return oCanvas;
}

void DrawMark(Canvas& oCanvas, Point oMiddle, double dWidth, Rgb oColor) {
  oCanvas.DrawLine(oMiddle + Point{-dWidth / 2, 0}, oMiddle + Point{dWidth / 2, 0}, kLabelHeight, oColor);
}

void DrawMarkBelow(Canvas& oCanvas, Point oPlace, double dWidth) {
  DrawMark(oCanvas, oPlace + Point{0, kLabelGap + kLabelHeight / 2}, dWidth, kLabel);
}

void DrawMarkBeside(Canvas& oCanvas, Point oPlace) {
  DrawMark(oCanvas, oPlace + Point{-kLabelGap - kLabelWidth / 2, 0}, kLabelWidth, kLabel);
}

/// Draws the wall above the line between two positions of the front.
void DrawWall(Canvas& oCanvas, Point oFrom, Point oTo, Point oDepth, Rgb oFill) {
  oCanvas.FillPolygon({oFrom, oTo, oTo + oDepth, oFrom + oDepth}, oFill);
}

}  // namespace

Point Plot::At(double dCategory, double dValue) const {
  if (eValues == Values::kRightwards) std::swap(dCategory, dValue);
  return {oArea.dLeft + dCategory * (oArea.dRight - oArea.dLeft),
          oArea.dBottom - dValue * (oArea.dBottom - oArea.dTop)};
}

Rectangle Plot::Between(double dCategory1, double dValue1, double dCategory2, double dValue2) const {
  const Point a = At(dCategory1, dValue1), b = At(dCategory2, dValue2);
  return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
}

Stage SampleStage() { return {Card(132, 96), {15, 10, 123, 85}}; }

Stage TypeStage(std::size_t lSeries) {
  Stage oStage{Card(168, 120), {17, 22, 124, 107}};
  DrawMark(oStage.oCanvas, {84, 11}, 56, kTitle);
  DrawLegend(oStage.oCanvas, {133, 22, 160, 107}, lSeries);
  return oStage;
}

Plot MakePlot(const Rectangle& oArea, Values eValues, Look eLook) {
  Plot oPlot{oArea, {}, eValues};
  if (eLook == Look::k3D) {
    oPlot.oDepth = kDepth;
    oPlot.oArea.dRight -= kDepth.x;
    oPlot.oArea.dTop -= kDepth.y;
  }
  return oPlot;
}

void DrawAxes(Canvas& oCanvas, const Plot& oPlot) {
  const Point oOrigin = oPlot.At(0, 0), oDepth = oPlot.oDepth;
  const Point oValueEnd = oPlot.At(0, 1), oCategoryEnd = oPlot.At(1, 0);
  const bool bHasDepth = oDepth != Point{};
  if (bHasDepth) {
    const bool bUpwards = oPlot.eValues == Values::kUpwards;
    DrawWall(oCanvas, oOrigin, oValueEnd, oDepth, bUpwards ? kSideWall : kFloor);
    DrawWall(oCanvas, oOrigin, oCategoryEnd, oDepth, bUpwards ? kFloor : kSideWall);
    const Rectangle& oFront = oPlot.oArea;
    oCanvas.FillRectangle({oFront.dLeft + oDepth.x, oFront.dTop + oDepth.y, oFront.dRight + oDepth.x,
                           oFront.dBottom + oDepth.y},
                          kBackWall);
  }
  for (const double dValue : kGridlines) {
    const Point oStart = oPlot.At(0, dValue), oEnd = oPlot.At(1, dValue);
    oCanvas.DrawLine(oStart + oDepth, oEnd + oDepth, 0.75, bHasDepth ? kWallGrid : kGrid);
    if (bHasDepth) oCanvas.DrawLine(oStart, oStart + oDepth, 0.75, kWallGrid);
    DrawValueLabel(oCanvas, oPlot, dValue);
  }
  DrawValueLabel(oCanvas, oPlot, 0);
  oCanvas.DrawLine(oOrigin, oValueEnd, 1, kAxis);
  oCanvas.DrawLine(oOrigin, oCategoryEnd, 1, kAxis);
}

void DrawCategoryLabel(Canvas& oCanvas, const Plot& oPlot, double dCategory) {
  const Point oPlace = oPlot.At(dCategory, 0);
  if (oPlot.eValues == Values::kUpwards) {
    DrawMarkBelow(oCanvas, oPlace, 2 * kLabelWidth);
  } else {
    DrawMarkBeside(oCanvas, oPlace);
  }
}

void DrawValueLabel(Canvas& oCanvas, const Plot& oPlot, double dValue) {
  const Point oPlace = oPlot.At(0, dValue);
  if (oPlot.eValues == Values::kUpwards) {
    DrawMarkBeside(oCanvas, oPlace);
  } else {
    DrawMarkBelow(oCanvas, oPlace, kLabelWidth);
  }
}

void DrawLegend(Canvas& oCanvas, const Rectangle& oArea, std::size_t lSeries) {
  constexpr double kRow = 12, kSwatch = 7.5, kText = 12;  // points
  constexpr double kTextWidths[] = {0.8, 1, 0.65, 0.9};   // Shares of the available width.
  const double dFirst = (oArea.dTop + oArea.dBottom - static_cast<double>(lSeries - 1) * kRow) / 2;
  for (std::size_t i = 0; i < lSeries; ++i) {
    const double dMiddle = dFirst + static_cast<double>(i) * kRow;
    oCanvas.FillRectangle({oArea.dLeft, dMiddle - kSwatch / 2, oArea.dLeft + kSwatch, dMiddle + kSwatch / 2},
                          kSeriesColors[i]);
    const double dText = oArea.dLeft + kText, dWidth = (oArea.dRight - dText) * kTextWidths[i];
    DrawMark(oCanvas, {dText + dWidth / 2, dMiddle}, dWidth, kTitle);
  }
}

Picture LegendPicture() {
  Canvas oCanvas = Card(54, 62);
  DrawLegend(oCanvas, {8, 6, 46, 56}, kSeriesColors.size());
  return oCanvas.Result();
}

Picture DimLegendPicture() {
  constexpr Rgb kHaze{0xF2, 0xF3, 0xF5};
  Picture oPicture = LegendPicture();
  for (Shape& shape : oPicture.aShapes) {
    shape.oFill = Mix(shape.oFill, kHaze, 0.75);
    if (shape.oOutline) shape.oOutline->oColor = Mix(shape.oOutline->oColor, kHaze, 0.6);
  }
  return oPicture;
}

}  // namespace plotsmith::pictures

#include "pages/pictures/Families.h"

namespace plotsmith::pictures {
namespace {

/// Positions are shares of the plot's width and height; the radius is a share of the height.
struct Bubble {
  double x, y, dRadius;
  std::size_t lSeries;
};

/// Large bubbles come first, so that small ones are in front.
constexpr Bubble kBubbles[] = {{0.74, 0.7, 0.19, 0},  {0.27, 0.3, 0.16, 2}, {0.3, 0.78, 0.13, 1},
                               {0.56, 0.42, 0.11, 3}, {0.84, 0.27, 0.1, 1}, {0.66, 0.17, 0.07, 2},
                               {0.13, 0.6, 0.06, 0}};

constexpr Rgb kTint{0xEA, 0xF1, 0xF9};
constexpr Rgb kOtherTint{0xF7, 0xF8, 0xFA};
constexpr Rgb kMiddle{0x7D, 0x88, 0x98};

/// Draws four quadrants, two of them tinted, and lines through the middle of both axes.
void DrawQuadrants(Canvas& oCanvas, const Plot& oPlot) {
  for (const double x : {0.0, 0.5}) {
    for (const double y : {0.0, 0.5}) {
      oCanvas.FillRectangle(oPlot.Between(x, y, x + 0.5, y + 0.5), x == y ? kTint : kOtherTint);
    }
  }
  oCanvas.DrawLine(oPlot.At(0.5, 0), oPlot.At(0.5, 1), 1, kMiddle);
  oCanvas.DrawLine(oPlot.At(0, 0.5), oPlot.At(1, 0.5), 1, kMiddle);
  for (const double dShare : {0.0, 0.5, 1.0}) {
    DrawCategoryLabel(oCanvas, oPlot, dShare);
    DrawValueLabel(oCanvas, oPlot, dShare);
  }
}

void DrawGridlines(Canvas& oCanvas, const Plot& oPlot) {
  DrawAxes(oCanvas, oPlot);
  for (const double dShare : {0.0, 0.25, 0.5, 0.75, 1.0}) DrawCategoryLabel(oCanvas, oPlot, dShare);
}

}  // namespace

void DrawBubbles(Stage& oStage, Background eBackground, Look eLook) {
  // The plot is always flat; only the bubbles have depth.
  const Plot oPlot = MakePlot(oStage.oArea, Values::kUpwards, Look::kFlat);
  if (eBackground == Background::kQuadrants) {
    DrawQuadrants(oStage.oCanvas, oPlot);
  } else {
    DrawGridlines(oStage.oCanvas, oPlot);
  }
  const double dHeight = oPlot.oArea.dBottom - oPlot.oArea.dTop;
  for (const Bubble& bubble : kBubbles) {
    const Point oCenter = oPlot.At(bubble.x, bubble.y);
    const double dRadius = bubble.dRadius * dHeight;
    const Rgb oColor = kSeriesColors[bubble.lSeries];
    if (eLook == Look::k3D) {
      oStage.oCanvas.FillBall(oCenter, dRadius, oColor);
    } else {
      oStage.oCanvas.FillCircle(oCenter, dRadius, Shade(oColor, 0.15), Outline{Shade(oColor, -0.25), 0.8});
    }
  }
}

}  // namespace plotsmith::pictures

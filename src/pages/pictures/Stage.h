#pragma once

#include <array>

#include "pages/pictures/Canvas.h"

/// What the samples have in common: the palette, the card that they lie on, axes, legends.
namespace plotsmith::pictures {

/// The colours of the series.
inline constexpr std::array<Rgb, 4> kSeriesColors = {
    {{0x2F, 0x6F, 0xB7}, {0xF2, 0x9A, 0x38}, {0x2F, 0xA3, 0x8C}, {0x8C, 0x62, 0xA8}}};

/// Which way the value axis runs.
enum class Values { kUpwards, kRightwards };

/// Whether a sample is flat or has depth.
enum class Look { kFlat, k3D };

/// The area between the axes.
struct Plot {
  Rectangle oArea;  ///< its front, if it has depth
  Point oDepth;     ///< the way from the front to the back wall; (0, 0) in a flat chart
  Values eValues = Values::kUpwards;

  /// The place of a share of the category axis and a share of the value axis, each from 0 to 1, on the front.
  Point At(double dCategory, double dValue) const;
  /// The rectangle between two such places.
  Rectangle Between(double dCategory1, double dValue1, double dCategory2, double dValue2) const;
};

/// An empty card, and the area on it that is for the chart.
struct Stage {
  Canvas oCanvas;
  Rectangle oArea;
};

/// The card of a layout page's sample.
Stage SampleStage();
/// The larger card of a chart type's sample, with a title and a legend of so many series.
Stage TypeStage(std::size_t lSeries);

/// A plot in an area, which leaves room for the depth.
Plot MakePlot(const Rectangle& oArea, Values eValues, Look eLook);
/// Walls, gridlines and axes.
void DrawAxes(Canvas& oCanvas, const Plot& oPlot);
/// A mark instead of a text at a share of the category axis, or of the value axis.
///@{
void DrawCategoryLabel(Canvas& oCanvas, const Plot& oPlot, double dCategory);
void DrawValueLabel(Canvas& oCanvas, const Plot& oPlot, double dValue);
///@}

/// Swatches of the first series' colours with marks instead of texts, one below the other, in the middle of
/// the area's height.
void DrawLegend(Canvas& oCanvas, const Rectangle& oArea, std::size_t lSeries);
/// A legend alone on a small card.
Picture LegendPicture();
/// The same where there are no colours to explain.
Picture DimLegendPicture();

}  // namespace plotsmith::pictures

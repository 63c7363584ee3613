#pragma once

#include <array>

#include "pages/pictures/Canvas.h"

/// The common parts of the samples: palette, card, axes and legends.
namespace plotsmith::pictures {

/// The colours of the series.
inline constexpr std::array<Rgb, 4> kSeriesColors = {
    {{0x2F, 0x6F, 0xB7}, {0xF2, 0x9A, 0x38}, {0x2F, 0xA3, 0x8C}, {0x8C, 0x62, 0xA8}}};

/// The direction of the value axis.
enum class Values { kUpwards, kRightwards };

/// Whether a sample is flat or has depth.
enum class Look { kFlat, k3D };

/// The area between the axes.
struct Plot {
  Rectangle oArea;                    ///< The area; the front face in 3-D.
  Point oDepth;                       ///< The vector from the front to the back wall; (0, 0) in a flat chart.
  Values eValues = Values::kUpwards;  ///< The direction in which values grow.

  /// Returns the position of a share of the category axis and a share of the value axis, each from 0 to 1, on
  /// the front.
  Point At(double dCategory, double dValue) const;
  /// Returns the rectangle between two positions, each given as in At.
  Rectangle Between(double dCategory1, double dValue1, double dCategory2, double dValue2) const;
};

/// An empty card, and the area for the chart on it.
struct Stage {
  Canvas oCanvas;   ///< The canvas with the empty card.
  Rectangle oArea;  ///< The area for the chart, in points.
};

/// Makes the card of a sample on a layout page.
Stage SampleStage();
/// Makes the larger card of a sample for a chart type, with a title and a legend of `lSeries` series.
Stage TypeStage(std::size_t lSeries);

/// Makes a plot in an area and reserves space for the depth.
Plot MakePlot(const Rectangle& oArea, Values eValues, Look eLook);
/// Draws walls, gridlines and axes.
void DrawAxes(Canvas& oCanvas, const Plot& oPlot);
/// Draws a mark in place of a label at a share of the category axis or of the value axis.
///@{
void DrawCategoryLabel(Canvas& oCanvas, const Plot& oPlot, double dCategory);
void DrawValueLabel(Canvas& oCanvas, const Plot& oPlot, double dValue);
///@}

/// Draws a legend: colour samples of the first series with marks in place of texts, one below the other,
/// vertically centred in the area.
void DrawLegend(Canvas& oCanvas, const Rectangle& oArea, std::size_t lSeries);
/// Draws a legend on a small card.
Picture LegendPicture();
/// Draws the dim legend for a chart of one colour.
Picture DimLegendPicture();

}  // namespace plotsmith::pictures

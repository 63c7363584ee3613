#include <vector>

#include "pages/pictures/Families.h"

namespace plotsmith::pictures {
namespace {

struct Block {
  double dSize;  ///< A share of the value axis.
  std::size_t lSeries;
};

struct Bucket {
  std::vector<Block> aBlocks;  ///< From the bottom.
  double dValue;               ///< The value of the bucket, as a share of the value axis.
};

const std::vector<Bucket> kBuckets = {
    {{{0.2, 0}, {0.13, 1}, {0.17, 0}, {0.09, 2}}, 0.72},
    {{{0.26, 2}, {0.18, 3}, {0.22, 1}, {0.14, 0}}, 0.68},
    {{{0.15, 1}, {0.1, 0}, {0.13, 3}}, 0.5},
    {{{0.22, 3}, {0.2, 0}, {0.16, 2}, {0.12, 1}}, 0.88},
};

constexpr Rgb kBlockEdge{0x2B, 0x33, 0x40};
/// A light edge separates the marker from the blocks.
constexpr Rgb kMarkerEdge{0xFF, 0xFF, 0xFF};
constexpr Rgb kMarker{0xDD, 0x1F, 0x26};

void DrawBlocks(Canvas& oCanvas, const Plot& oPlot, const Bucket& oBucket, double dFrom, double dTo) {
  double dReached = 0;
  for (const Block& block : oBucket.aBlocks) {
    oCanvas.FillRectangle(oPlot.Between(dFrom, dReached, dTo, dReached + block.dSize),
                          kSeriesColors[block.lSeries], Outline{kBlockEdge, 0.6});
    dReached += block.dSize;
  }
}

void DrawMarker(Canvas& oCanvas, const Plot& oPlot, const Bucket& oBucket, double dFrom, double dTo) {
  constexpr double kInset = 0.14;  // A share of the column's width.
  const double dInset = (dTo - dFrom) * kInset;
  const Point oFrom = oPlot.At(dFrom + dInset, oBucket.dValue), oTo = oPlot.At(dTo - dInset, oBucket.dValue);
  const Point oEdge{0.7, 0};
  oCanvas.DrawLine(oFrom + oEdge * -1, oTo + oEdge, 4, kMarkerEdge);
  oCanvas.DrawLine(oFrom, oTo, 2.6, kMarker);
}

}  // namespace

void DrawBuckets(Stage& oStage) {
  const Plot oPlot = MakePlot(oStage.oArea, Values::kUpwards, Look::kFlat);
  DrawAxes(oStage.oCanvas, oPlot);
  const double dColumn = 1 / static_cast<double>(kBuckets.size());  // The columns have no gaps.
  for (std::size_t i = 0; i < kBuckets.size(); ++i) {
    const double dFrom = static_cast<double>(i) * dColumn;
    DrawCategoryLabel(oStage.oCanvas, oPlot, dFrom + dColumn / 2);
    DrawBlocks(oStage.oCanvas, oPlot, kBuckets[i], dFrom, dFrom + dColumn);
    DrawMarker(oStage.oCanvas, oPlot, kBuckets[i], dFrom, dFrom + dColumn);
  }
}

}  // namespace plotsmith::pictures

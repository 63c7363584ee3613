#include <algorithm>
#include <cmath>
#include <vector>

#include "render/families/Families.h"
#include "render/families/Slices.h"
#include "render/labels/DataLabels.h"
#include "render/labels/LabelText.h"
#include "render/model/StyledShape.h"

namespace plotsmith::render {
namespace {

/// The slices of both plots. The last slice of the first plot is that of the point "Other", which is in the
/// middle of the right side. The shares in the second plot are shares of the sum of all points.
struct SplitSlices {
  std::vector<DrawnPoint> first, second;
};

SplitSlices Split(const GroupModel& group, const SeriesModel& series) {
  const std::size_t other = series.values.size() - 1;
  std::vector<std::size_t> first;
  for (std::size_t i = 0; i <= other; ++i) {
    if (!series.secondPlot.contains(i)) first.push_back(i);
  }
  SplitSlices slices{SlicesOf(group, series, first),
                     SlicesOf(group, series, {series.secondPlot.begin(), series.secondPlot.end()})};
  if (slices.first.empty()) return slices;
  constexpr double kRight = 90;  // degrees
  const double turn = kRight + slices.first.back().sweep / 2;
  for (DrawnPoint& slice : slices.first) slice.angle = std::fmod(slice.angle + turn, 360);
  for (DrawnPoint& slice : slices.second) {
    slice.isInSecondPlot = true;
    slice.share *= slices.first.back().share;
  }
  return slices;
}

/// The sizes of both plots, in radii of the first one.
struct Proportions {
  double firstWidth = 2, firstHeight = 2, secondWidth = 0, secondHeight = 0, gap = 0;

  double Height() const { return std::max(firstHeight, secondHeight); }
};

Proportions ProportionsOf(const GroupModel& group, const SplitSlices& slices) {
  Proportions sizes;
  const double size = group.secondPlotSize / 100;
  sizes.firstWidth = sizes.firstHeight = 2 * (1 + FarthestExplosion(slices.first));
  const double explosion = group.isBarOfPie ? 0 : FarthestExplosion(slices.second);
  sizes.secondHeight = 2 * size * (1 + explosion);
  sizes.secondWidth = group.isBarOfPie ? size : sizes.secondHeight;  // a bar is half as wide as it is high
  sizes.gap = group.gapWidth / 100 * (1 + size) / 2;
  return sizes;
}

/// Returns the rectangles of a bar from top to bottom.
std::vector<DrawnPoint> PiecesOf(std::vector<DrawnPoint> slices, const Rect& bar) {
  double top = bar.top;
  for (DrawnPoint& piece : slices) {
    piece.box = {bar.left, top, bar.width, bar.height * piece.sweep / 360};
    piece.angle = piece.sweep = 0;
    piece.circle = {};
    top = piece.box.Bottom();
  }
  return slices;
}

/// Returns the width that the labels of a bar take to its right, in points.
double WidthOfLabels(const Plot& plot, const std::vector<DrawnPoint>& pieces) {
  double width = 0;
  for (const DrawnPoint& piece : pieces) {
    const LabelModel* label = piece.series->labels.Of(piece.index);
    if (label == nullptr || label->layout) continue;
    const TextBlock block =
        LayOut(LabelText(plot.chart, *piece.group, *piece.series, piece.index, *label, piece.share),
               plot.canvas.Measure());
    const double own = block.TurnedWidth() + 2 * kLabelPadding;
    if (IsBesidePiece(piece, label->position, own, block.TurnedHeight())) width = std::max(width, own + 2);
  }
  return width;
}

void DrawPieces(Plot& plot, const std::vector<DrawnPoint>& pieces) {
  for (const DrawnPoint& piece : pieces) {
    if (piece.box.height > 0) {
      AddShape(plot.canvas, {Role::kSlice, piece.series->number, static_cast<int>(piece.index + 1)},
               Path().AddRect(piece.box), piece.series->StyleOf(piece.index));
    }
    plot.Keep(piece);
  }
}

/// Draws both plots in a plot area.
class OfPiePainter {
 public:
  OfPiePainter(Plot& plot, const GroupModel& group)
      : plot_(plot),
        group_(group),
        slices_(Split(group, group.series.front())),
        sizes_(ProportionsOf(group, slices_)) {}

  void Draw() {
    if (slices_.first.empty()) return;
    Rect room = plot_.area;
    double between = 0;
    double radius = RadiusIn(room, between);
    const double whole = radius;
    for (int pass = 0; pass < kLabelPasses && !plot_.chart.layout; ++pass) {
      room = WithoutLabels(radius, between);
      radius = std::min(std::max(RadiusIn(room, between), whole * kLeastRadius), radius);
    }
    const double pies = (sizes_.firstWidth + sizes_.secondWidth) * radius;
    const double gap = std::max(sizes_.gap * radius, std::min(between, room.width - pies));
    const double left = room.Center().x - (pies + gap) / 2, middle = room.Center().y;
    const Ring first{{left + sizes_.firstWidth * radius / 2, middle}, radius};
    const double right = left + pies + gap;
    const Rect second = SecondPlot({right - sizes_.secondWidth * radius / 2, middle}, radius);
    DrawLines(first, second);
    DrawSlices(plot_, slices_.first, first);
    if (group_.isBarOfPie) return DrawPieces(plot_, PiecesOf(slices_.second, second));
    DrawSlices(plot_, slices_.second, {second.Center(), second.height / 2});
  }

 private:
  /// Returns the radius of the first plot at which both plots fit into a rectangle. The gap between them is
  /// at least `between` points wide.
  double RadiusIn(const Rect& room, double between) const {
    const double pies = sizes_.firstWidth + sizes_.secondWidth;
    const double wide = std::min(room.width / (pies + sizes_.gap), (room.width - between) / pies);
    return std::max(std::min(wide, room.height / sizes_.Height()), 0.0);
  }

  /// Returns the rectangle of the second plot, without its exploded slices.
  Rect SecondPlot(Point center, double radius) const {
    const double height = 2 * radius * group_.secondPlotSize / 100;
    const double width = group_.isBarOfPie ? height / 2 : height;
    return {center.x - width / 2, center.y - height / 2, width, height};
  }

  /// Returns the plot area without the room for labels at its sides, which depends on a radius. `between`
  /// becomes the width of the labels in the gap.
  Rect WithoutLabels(double radius, double& between) const {
    const LabelRoom first = RoomForLabels(plot_, slices_.first, radius);
    const Rect bar = SecondPlot({}, radius);
    LabelRoom second;
    if (group_.isBarOfPie) {
      second.right = WidthOfLabels(plot_, PiecesOf(slices_.second, bar));
    } else {
      second = RoomForLabels(plot_, slices_.second, bar.height / 2);
    }
    between = std::max(first.right, second.left);
    const Rect& area = plot_.area;
    const double height = std::max(first.height, second.height);
    return {area.left + first.left, area.top + height, area.width - first.left - second.right,
            area.height - 2 * height};
  }

  /// Draws the lines from the slice of the point "Other" to the upper and the lower end of the second plot.
  void DrawLines(const Ring& first, const Rect& second) {
    if (!group_.seriesLines || slices_.second.empty()) return;
    const DrawnPoint& other = slices_.first.back();
    const Rect circle = first.CircleOf(other);
    const double x = group_.isBarOfPie ? second.left : second.Center().x;
    const Tag tag{Role::kSeriesLine, other.series->number};
    plot_.canvas.AddLine(tag, OnEllipse(circle, other.angle), {x, second.top}, *group_.seriesLines);
    plot_.canvas.AddLine(tag, OnEllipse(circle, other.angle + other.sweep), {x, second.Bottom()},
                         *group_.seriesLines);
  }

  Plot& plot_;
  const GroupModel& group_;
  SplitSlices slices_;
  Proportions sizes_;
};

}  // namespace

void DrawOfPie(Plot& plot, const GroupModel& group) {
  if (group.series.front().secondPlot.empty()) return DrawPie(plot, group);
  OfPiePainter(plot, group).Draw();
}

}  // namespace plotsmith::render

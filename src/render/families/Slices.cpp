#include "render/families/Slices.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

#include "render/labels/DataLabels.h"
#include "render/labels/LabelText.h"
#include "render/model/StyledShape.h"

namespace plotsmith::render {
namespace {

Path SliceOutline(const Rect& circle, const DrawnPoint& slice) {
  Path path;
  const Point center = circle.Center();
  if (slice.sweep >= 360 - 1e-9) {
    path.AddEllipse(circle);
    if (slice.hole > 0) {
      const Rect inner =
          Inset(circle, circle.width / 2 * (1 - slice.hole), circle.height / 2 * (1 - slice.hole));
      path.MoveTo(OnEllipse(inner, 360)).ArcTo(inner, 360, -360).Close();
    }
    return path;
  }
  if (slice.hole > 0) {
    const Rect inner =
        Inset(circle, circle.width / 2 * (1 - slice.hole), circle.height / 2 * (1 - slice.hole));
    path.MoveTo(OnEllipse(circle, slice.angle)).ArcTo(circle, slice.angle, slice.sweep);
    path.LineTo(OnEllipse(inner, slice.angle + slice.sweep))
        .ArcTo(inner, slice.angle + slice.sweep, -slice.sweep);
    return path.Close();
  }
  path.MoveTo(center).LineTo(OnEllipse(circle, slice.angle)).ArcTo(circle, slice.angle, slice.sweep);
  return path.Close();
}

Rect CircleAbout(Point center, double radius) {
  return {center.x - radius, center.y - radius, 2 * radius, 2 * radius};
}

/// Returns how far a slice is moved outwards, in radii.
double ExplosionOf(const SeriesModel& series, std::size_t point) {
  const auto special = series.points.find(point);
  const bool own = special != series.points.end() && special->second.explosion;
  return (own ? *special->second.explosion : series.explosion) / 100;
}

}  // namespace

double FarthestExplosion(const std::vector<DrawnPoint>& slices) {
  double most = 0;
  for (const DrawnPoint& slice : slices) most = std::max(most, ExplosionOf(*slice.series, slice.index));
  return most;
}

std::vector<DrawnPoint> SlicesOf(const GroupModel& group, const SeriesModel& series) {
  std::vector<std::size_t> points(series.values.size());
  std::iota(points.begin(), points.end(), std::size_t{0});
  return SlicesOf(group, series, points);
}

std::vector<DrawnPoint> SlicesOf(const GroupModel& group, const SeriesModel& series,
                                 const std::vector<std::size_t>& points) {
  // The values are divided by the greatest one, because their sum may be infinite.
  double most = 0, whole = 0, sum = 0;
  for (const std::size_t i : points) {
    if (std::isfinite(series.values[i])) most = std::max(most, std::abs(series.values[i]));
  }
  std::vector<DrawnPoint> slices;
  if (!(most > 0)) return slices;
  for (const std::size_t i : points) {
    if (std::isfinite(series.values[i])) whole += std::abs(series.values[i]) / most;
  }
  for (const std::size_t i : points) {
    const double value = series.values[i];
    if (!std::isfinite(value)) continue;
    DrawnPoint slice{&group, &series, i};
    slice.share = std::abs(value) / most / whole;
    slice.angle = group.firstSliceAngle + 360 * sum / whole;
    slice.sweep = 360 * slice.share;
    slice.circle = {-1, -1, 2, 2};
    sum += std::abs(value) / most;
    slices.push_back(slice);
  }
  return slices;
}

LabelRoom RoomForLabels(const Plot& plot, const std::vector<DrawnPoint>& slices, double radius) {
  LabelRoom room;
  for (DrawnPoint slice : slices) {
    const LabelModel* label = slice.series->labels.Of(slice.index);
    if (label == nullptr || label->layout) continue;
    const TextBlock block =
        LayOut(LabelText(plot.chart, *slice.group, *slice.series, slice.index, *label, slice.share),
               plot.canvas.Measure());
    const double width = block.TurnedWidth() + 2 * kLabelPadding, height = block.TurnedHeight();
    slice.circle = {-radius, -radius, 2 * radius, 2 * radius};
    const bool inside = label->position == "ctr" || label->position == "inEnd" ||
                        (label->position == "bestFit" && FitsInSlice(slice, width, height));
    if (inside) continue;
    const Point way = OnEllipse({-1, -1, 2, 2}, slice.angle + slice.sweep / 2);
    double& side = way.x < 0 ? room.left : room.right;
    side = std::max(side, std::abs(way.x) * width + 2);
    room.height = std::max(room.height, std::abs(way.y) * height + 2);
  }
  return room;
}

Rect Ring::CircleOf(const DrawnPoint& slice) const {
  const double shift = explodes ? radius * ExplosionOf(*slice.series, slice.index) : 0;
  return CircleAbout(OnEllipse(CircleAbout(center, shift), slice.angle + slice.sweep / 2), radius);
}

void DrawSlices(Plot& plot, std::vector<DrawnPoint> slices, const Ring& ring) {
  for (DrawnPoint& slice : slices) {
    const SeriesModel& series = *slice.series;
    slice.circle = ring.CircleOf(slice);
    slice.box = slice.circle;
    slice.hole = ring.hole;
    if (slice.sweep > 0) {
      const ShapeStyle& style = series.StyleOf(slice.index);
      AddShape(plot.canvas, {Role::kSlice, series.number, static_cast<int>(slice.index + 1)},
               SliceOutline(slice.circle, slice), style);
    }
    plot.Keep(slice);
  }
}

}  // namespace plotsmith::render

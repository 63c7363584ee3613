#include <algorithm>
#include <cmath>

#include "render/families/Families.h"
#include "render/labels/DataLabels.h"
#include "render/labels/LabelText.h"
#include "render/model/StyledShape.h"

namespace plotsmith::render {
namespace {

constexpr double kLeastRadius = 0.3;  // smallest share of the radius that labels outside leave

double ExplosionOf(const SeriesModel& series, std::size_t point) {
  const auto special = series.points.find(point);
  const bool own = special != series.points.end() && special->second.explosion;
  return (own ? *special->second.explosion : series.explosion) / 100;
}

/// Returns the slices of a series, in a circle of radius 1 around the origin.
std::vector<DrawnPoint> SlicesOf(const GroupModel& group, const SeriesModel& series) {
  // Values are shares of the greatest one, because their sum may be infinite.
  double most = 0, whole = 0, sum = 0;
  for (const double value : series.values) {
    if (std::isfinite(value)) most = std::max(most, std::abs(value));
  }
  std::vector<DrawnPoint> slices;
  if (!(most > 0)) return slices;
  for (const double value : series.values) {
    if (std::isfinite(value)) whole += std::abs(value) / most;
  }
  for (std::size_t i = 0; i < series.values.size(); ++i) {
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

/// The room that labels outside of the circle take on each side, in points.
struct LabelRoom {
  double width = 0, height = 0;
};

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
    room.width = std::max(room.width, std::abs(way.x) * width + 2);
    room.height = std::max(room.height, std::abs(way.y) * height + 2);
  }
  return room;
}

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

/// Returns how far the slices of a series are moved outwards at most, in radii.
double FarthestExplosion(const SeriesModel& series, const std::vector<DrawnPoint>& slices) {
  double most = 0;
  for (const DrawnPoint& slice : slices) most = std::max(most, ExplosionOf(series, slice.index));
  return most;
}

/// A circle or a ring. `hole` is the inner radius as a share of the outer one.
struct Ring {
  Point center;
  double radius = 0, hole = 0;
  bool explodes = true;
};

void DrawSlices(Plot& plot, std::vector<DrawnPoint> slices, const Ring& ring) {
  const auto& [center, radius, hole, explodes] = ring;
  for (DrawnPoint& slice : slices) {
    const SeriesModel& series = *slice.series;
    const double shift = explodes ? radius * ExplosionOf(series, slice.index) : 0;
    slice.circle = CircleAbout(OnEllipse(CircleAbout(center, shift), slice.angle + slice.sweep / 2), radius);
    slice.box = slice.circle;
    slice.hole = hole;
    if (slice.sweep > 0) {
      const ShapeStyle& style = series.StyleOf(slice.index);
      AddShape(plot.canvas, {Role::kSlice, series.number, static_cast<int>(slice.index + 1)},
               SliceOutline(slice.circle, slice), style);
    }
    plot.Keep(slice);
  }
}

/// Draws the rings of a doughnut, with the first series innermost. Only the slices of the outermost can move
/// outwards.
void DrawRings(Plot& plot, const GroupModel& group) {
  const SeriesModel& last = group.series.back();
  const double free =
      std::min(plot.area.width, plot.area.height) / 2 / (1 + FarthestExplosion(last, SlicesOf(group, last)));
  const double hole = group.holeSize / 100;
  const double width = (1 - hole) / static_cast<double>(group.series.size());
  for (std::size_t s = 0; s < group.series.size(); ++s) {
    const SeriesModel& series = group.series[s];
    const double outer = hole + width * static_cast<double>(s + 1);
    DrawSlices(plot, SlicesOf(group, series),
               {plot.area.Center(), free * outer, (outer - width) / outer, &series == &last});
  }
}

}  // namespace

void DrawPie(Plot& plot, const GroupModel& group) {
  if (group.family == Family::kDoughnut) return DrawRings(plot, group);
  const Point center = plot.area.Center();
  const double free = std::min(plot.area.width, plot.area.height) / 2;
  const SeriesModel& series = group.series.front();  // A pie shows one series.
  const std::vector<DrawnPoint> slices = SlicesOf(group, series);
  const double explosion = FarthestExplosion(series, slices);
  double radius = free / (1 + explosion);
  if (!plot.chart.layout) {
    const LabelRoom room = RoomForLabels(plot, slices, radius);
    const double across = plot.area.width / 2 - room.width, down = plot.area.height / 2 - room.height;
    radius = std::max(std::min(across, down) / (1 + explosion), radius * kLeastRadius);
    radius = std::min(radius, free / (1 + explosion));
  }
  DrawSlices(plot, slices, {center, radius});
}

}  // namespace plotsmith::render

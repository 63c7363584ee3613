#include "render/threed/Pie3D.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "render/fills/LitFill.h"
#include "render/labels/DataLabels.h"
#include "render/labels/LabelText.h"
#include "render/threed/View.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {
namespace {

constexpr double kThickness = 0.12;               // share of the diameter, at a height of 100 percent
constexpr double kFlattest = 10, kSteepest = 90;  // Excel's limits for the elevation of pies, in degrees
constexpr double kRimLight = 0.75, kEdgeLight = 0.55, kCutLight = 0.65;

struct Slice {
  std::size_t point = 0;
  double from = 0, sweep = 0;  ///< degrees clockwise from the back
  double explosion = 0;        ///< in radii
  double share = 0;

  double Middle() const { return from + sweep / 2; }
};

std::vector<Slice> SlicesOf(const SeriesModel& series, double firstAngle) {
  // The values are divided by the greatest one, because their sum may be infinite.
  double most = 0, whole = 0;
  for (const double value : series.values) most = std::max(most, std::isfinite(value) ? std::abs(value) : 0);
  for (const double value : series.values)
    whole += std::isfinite(value) && most > 0 ? std::abs(value) / most : 0;
  std::vector<Slice> slices;
  if (!(whole > 0) || !std::isfinite(whole)) return slices;
  double angle = firstAngle;
  for (std::size_t i = 0; i < series.values.size(); ++i) {
    const double share = std::isfinite(series.values[i]) ? std::abs(series.values[i]) / most / whole : 0;
    if (share <= 0) continue;
    const auto own = series.points.find(i);
    const bool differs = own != series.points.end() && own->second.explosion;
    slices.push_back(
        {i, angle, share * 360, (differs ? *own->second.explosion : series.explosion) / 100, share});
    angle += share * 360;
  }
  return slices;
}

/// The disc on the picture. Its upper side is an ellipse, and its lower side is the same ellipse farther
/// down.
class Disc {
 public:
  Disc(const View& view, const Rect& room, double explosion) {
    const double elevation = std::clamp(std::abs(view.elevation), kFlattest, kSteepest) * kRadian;
    const double thickness = 2 * kThickness * view.heightPercent.value_or(100) / 100 * std::cos(elevation);
    const double flat = std::sin(elevation), reach = 1 + explosion;
    radius_ = std::min(room.width / 2 / reach, room.height / (2 * flat * reach + thickness));
    flat_ = flat;
    drop_ = thickness * radius_;
    center_ = {room.Center().x, room.Center().y - drop_ / 2};
  }

  double Drop() const { return drop_; }
  double Flatness() const { return flat_; }
  /// Returns the ellipse that the upper side of a slice is part of.
  Rect EllipseOf(const Slice& slice) const {
    const double away = slice.explosion * radius_, angle = slice.Middle() * kRadian;
    const Point middle{center_.x + away * std::sin(angle), center_.y - away * std::cos(angle) * flat_};
    return {middle.x - radius_, middle.y - radius_ * flat_, 2 * radius_, 2 * radius_ * flat_};
  }

 private:
  Point center_;
  double radius_ = 0, flat_ = 1, drop_ = 0;
};

Point Below(Point point, double drop) { return {point.x, point.y + drop}; }

/// A vertical face of a slice, with its nearness to the viewer.
struct Wall {
  Path path;
  Fill fill;
  Stroke stroke;
  Tag tag;
  double nearness = 0;
};

class SliceWalls {
 public:
  SliceWalls(const Disc& disc, const SeriesModel& series, std::vector<Wall>& walls)
      : disc_(disc), series_(series), walls_(walls) {}

  /// Adds the visible part of the rim, which is its front half.
  void AddRim(const Slice& slice) {
    for (const double front : {180.0, 540.0}) {
      const double from = std::max(slice.from, front - 90);
      const double to = std::min(slice.from + slice.sweep, front + 90);
      if (to <= from) continue;
      const Rect top = disc_.EllipseOf(slice);
      const Rect bottom{top.left, top.top + disc_.Drop(), top.width, top.height};
      Path path;
      path.MoveTo(OnEllipse(top, from)).ArcTo(top, from, to - from).LineTo(OnEllipse(bottom, to));
      path.ArcTo(bottom, to, from - to).Close();
      const double middle = (from + to) / 2;
      Add(slice, std::move(path), RimFill(slice, from, to), OnEllipse(top, middle).y);
    }
  }
  /// Adds the faces of the cuts between a slice and its neighbours if they face the viewer.
  void AddCuts(const Slice& slice) {
    if (slice.sweep >= 360 - 1e-9) return;
    const double end = slice.from + slice.sweep;
    if (std::sin(slice.from * kRadian) < -1e-9) AddCut(slice, slice.from);
    if (std::sin(end * kRadian) > 1e-9) AddCut(slice, end);
  }

 private:
  void AddCut(const Slice& slice, double angle) {
    const Rect top = disc_.EllipseOf(slice);
    const Point middle = top.Center(), edge = OnEllipse(top, angle);
    Path path;
    path.AddPolygon({middle, edge, Below(edge, disc_.Drop()), Below(middle, disc_.Drop())});
    Add(slice, std::move(path), Lit(StyleOf(slice).fill, kCutLight), (middle.y + edge.y) / 2);
  }
  /// Returns the fill of a part of the rim, which is darker towards the sides.
  Fill RimFill(const Slice& slice, double from, double to) const {
    const Fill& fill = StyleOf(slice).fill;
    const auto* solid = std::get_if<SolidFill>(&fill);
    if (solid == nullptr) return Lit(fill, kRimLight);
    const auto across = [](double angle) { return std::sin(angle * kRadian); };
    GradientFill gradient;
    constexpr int kSteps = 6;
    for (int i = 0; i <= kSteps; ++i) {
      // The angles end at the left, where the gradient begins.
      const double x = across(to) + (across(from) - across(to)) * i / kSteps;
      const double light = kRimLight + (kEdgeLight - kRimLight) * x * x;
      gradient.stops.push_back({static_cast<double>(i) / kSteps, Lit(solid->color, light)});
    }
    return gradient;
  }
  const ShapeStyle& StyleOf(const Slice& slice) const { return series_.StyleOf(slice.point); }
  void Add(const Slice& slice, Path path, Fill fill, double nearness) {
    const ShapeStyle& style = StyleOf(slice);
    const Stroke edge = style.stroke.width > 0 ? style.stroke : SeamOf(Lit(style.fill, kRimLight));
    walls_.push_back({std::move(path),
                      std::move(fill),
                      edge,
                      {Role::kSide, series_.number, static_cast<int>(slice.point) + 1},
                      nearness});
  }

  const Disc& disc_;
  const SeriesModel& series_;
  std::vector<Wall>& walls_;
};

Path TopOf(const Rect& ellipse, const Slice& slice) {
  if (slice.sweep >= 360 - 1e-9) return Path().AddEllipse(ellipse);
  Path path;
  path.MoveTo(ellipse.Center()).LineTo(OnEllipse(ellipse, slice.from));
  return path.ArcTo(ellipse, slice.from, slice.sweep).Close();
}

void DrawWalls(Canvas& canvas, std::vector<Wall>& walls) {
  std::stable_sort(walls.begin(), walls.end(),
                   [](const Wall& a, const Wall& b) { return a.nearness < b.nearness; });
  for (Wall& wall : walls) canvas.Add(wall.tag, std::move(wall.path), wall.fill, wall.stroke);
}

}  // namespace

namespace {

DrawnPoint PointOf(const GroupModel& group, const Slice& slice, const Disc& disc) {
  const Rect ellipse = disc.EllipseOf(slice);
  DrawnPoint point{&group, &group.series.front(), slice.point};
  // The box includes the rim, because labels in front of the disc don't cover the rim.
  point.box = {ellipse.left, ellipse.top, ellipse.width, ellipse.height + disc.Drop()};
  point.angle = slice.from;
  point.sweep = slice.sweep;
  point.circle = ellipse;
  point.share = slice.share;
  return point;
}

/// Returns the space that labels beside a disc leave.
Rect WithoutLabels(const Plot& plot, const GroupModel& group, const std::vector<Slice>& slices,
                   const Disc& disc) {
  const LabelsModel& labels = group.series.front().labels;
  double across = 0, down = 0;
  for (const Slice& slice : slices) {
    const LabelModel* label = labels.Of(slice.point);
    if (label == nullptr || label->layout || label->position == "ctr" || label->position == "inEnd") continue;
    const RichText text =
        LabelText(plot.chart, group, group.series.front(), slice.point, *label, slice.share);
    const TextBlock block = LayOut(text, plot.canvas.Measure());
    const double width = block.TurnedWidth() + 2 * kLabelPadding, height = block.TurnedHeight();
    const DrawnPoint point = PointOf(group, slice, disc);
    if (label->position == "bestFit" && FitsInSlice(point, width, height / disc.Flatness())) continue;
    across = std::max(across, std::abs(std::sin(slice.Middle() * kRadian)) * width + 2);
    down = std::max(down, std::abs(std::cos(slice.Middle() * kRadian)) * height + 2);
  }
  constexpr double kMost = 0.35;  // share of the space that labels may take on each side
  return Inset(plot.area, std::min(across, plot.area.width * kMost),
               std::min(down, plot.area.height * kMost));
}

}  // namespace

void DrawPie3D(xlsx::ChartPart& part, Plot& plot, const GroupModel& group) {
  const View automatic{.rotation = 0};
  const View view = ReadView(xlsx::xml::Child(part.Space(), "chart"), automatic);
  const SeriesModel& series = group.series.front();  // A pie shows one series.
  const std::vector<Slice> slices = SlicesOf(series, view.rotation);
  double explosion = 0;
  for (const Slice& slice : slices) explosion = std::max(explosion, slice.explosion);
  Disc disc(view, plot.area, explosion);
  if (!plot.chart.layout) disc = Disc(view, WithoutLabels(plot, group, slices, disc), explosion);
  std::vector<Wall> walls;
  SliceWalls adder(disc, series, walls);
  for (const Slice& slice : slices) {
    adder.AddRim(slice);
    if (explosion > 0) adder.AddCuts(slice);
  }
  // Walls don't cover the upper sides of slices, because walls are below them.
  DrawWalls(plot.canvas, walls);
  for (const Slice& slice : slices) {
    const ShapeStyle& style = series.StyleOf(slice.point);
    plot.canvas.Add({Role::kSlice, series.number, static_cast<int>(slice.point) + 1},
                    TopOf(disc.EllipseOf(slice), slice), style.fill,
                    style.stroke.width > 0 ? style.stroke : SeamOf(style.fill));
    plot.Keep(PointOf(group, slice, disc));
  }
}

}  // namespace plotsmith::render

#include "render/labels/DataLabels.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "render/labels/LabelText.h"
#include "render/layout/LegendLayout.h"

namespace plotsmith::render {
namespace {

constexpr double kRadian = std::numbers::pi / 180;
constexpr double kGap = 1.5;          // between a point and the label beside it
constexpr double kKeySide = 6;        // of a legend key beside a label
constexpr double kWidestShare = 0.2;  // of the chart, before a label breaks

/// The half extents of a label with its padding.
struct Half {
  double width, height;
};

bool IsFlat(const Plot& plot, const DrawnPoint& point) {
  const AxisModel* axis = plot.ValueAxisOf(*point.group);
  return axis != nullptr && !axis->IsUpright();
}

Point CenterAtBar(const Plot& plot, const DrawnPoint& point, const std::string& position, Half half) {
  const Rect& box = point.box;
  const bool flat = IsFlat(plot, point);
  const AxisModel* axis = plot.ValueAxisOf(*point.group);
  const bool reversed = axis != nullptr && axis->reversed;
  // the way from the base of the bar to its end
  const double way = (point.negative != reversed ? -1 : 1) * (flat ? 1.0 : -1.0);
  const Point center = box.Center();
  const double reach = flat ? box.width / 2 : box.height / 2, depth = flat ? half.width : half.height;
  double shift = 0;
  if (position == "outEnd") shift = reach + depth + kGap;
  if (position == "inEnd") shift = reach - depth - kGap;
  if (position == "inBase") shift = -(reach - depth - kGap);
  return flat ? Point{center.x + way * shift, center.y} : Point{center.x, center.y + way * shift};
}

Point CenterAtMarker(const DrawnPoint& point, const std::string& position, Half half) {
  const Point center = point.box.Center();
  const double x = point.box.width / 2 + half.width, y = point.box.height / 2 + half.height;
  if (position == "t") return {center.x, center.y - y};
  if (position == "b") return {center.x, center.y + y};
  if (position == "l") return {center.x - x, center.y};
  if (position == "r") return {center.x + x, center.y};
  return center;
}

/// The farthest place of a box's centre in a direction at which the box is inside of a circle.
double FarthestInside(Half half, double degrees, double radius) {
  const double b = std::abs(std::sin(degrees * kRadian)) * half.width +
                   std::abs(std::cos(degrees * kRadian)) * half.height;
  const double rest = b * b + radius * radius - half.width * half.width - half.height * half.height;
  return rest > 0 ? std::max(std::sqrt(rest) - b, 0.0) : 0;
}

/// Whether a label keeps clear of a circle, or of the ellipse of a pie in 3-D and of its rim below.
bool IsBeside(const DrawnPoint& point, Point center, Half half) {
  const Point middle = point.circle.Center();
  for (const double drop : {0.0, point.box.height - point.circle.height}) {
    const Point nearest{std::clamp(middle.x, center.x - half.width, center.x + half.width),
                        std::clamp(middle.y + drop, center.y - half.height, center.y + half.height)};
    const double across = (nearest.x - middle.x) / (point.circle.width / 2);
    const double down = (nearest.y - middle.y - drop) / (point.circle.height / 2);
    if (std::hypot(across, down) < 1) return false;
  }
  return true;
}

/// As near to the middle of the slice's edge as a label can be.
Point CenterBesideSlice(const DrawnPoint& point, Half half, double degrees) {
  const Point edge = OnEllipse(point.circle, degrees), way = OnEllipse({-1, -1, 2, 2}, degrees);
  const auto at = [&](double distance) {
    return Point{edge.x + way.x * distance, edge.y + way.y * distance};
  };
  double near = 0, far = half.width + half.height + point.box.height - point.circle.height;
  constexpr int kSteps = 20;
  for (int step = 0; step < kSteps; ++step) {
    const double middle = (near + far) / 2;
    (IsBeside(point, at(middle), half) ? far : near) = middle;
  }
  return at(far + kGap);
}

Point CenterInSlice(const DrawnPoint& point, Half half, std::string position) {
  const double middle = point.angle + point.sweep / 2;
  const double radius = point.circle.width / 2;
  // of a pie in 3-D the circle is an ellipse; upright it would have labels as much higher
  const double flat = point.circle.width > 0 ? point.circle.height / point.circle.width : 1;
  const Half round{half.width, half.height / std::max(flat, 1e-6)};
  if (position == "bestFit")
    position = FitsInSlice(point, 2 * round.width, 2 * round.height) ? "inEnd" : "outEnd";
  if (position == "outEnd") return CenterBesideSlice(point, half, middle);
  double distance = radius * (1 + point.hole) / 2;
  if (position == "inEnd") distance = FarthestInside(round, middle, radius - kGap);
  const Rect circle{point.circle.Center().x - distance, point.circle.Center().y - distance * flat,
                    2 * distance, 2 * distance * flat};
  return OnEllipse(circle, middle);
}

Point CenterOf(const Plot& plot, const DrawnPoint& point, const LabelModel& label, Half half) {
  switch (point.group->family) {
    case Family::kBar:
      return CenterAtBar(plot, point, label.position, half);
    case Family::kPie:
    case Family::kDoughnut:
    case Family::kOfPie:
      return CenterInSlice(point, half, label.position);
    case Family::kArea:
      return point.box.Center();
    default:
      return CenterAtMarker(point, label.position, half);
  }
}

/// The line from a slice to its label, once that is away from it.
void DrawLeader(Plot& plot, const DrawnPoint& point, const Rect& label) {
  const LabelsModel& labels = point.series->labels;
  if (!labels.leaderLines || point.sweep <= 0) return;
  const Point from = OnEllipse(point.circle, point.angle + point.sweep / 2), center = label.Center();
  if (std::hypot(center.x - point.circle.Center().x, center.y - point.circle.Center().y) <=
      point.circle.width / 2) {
    return;  // a label inside of the circle
  }
  const Point to{std::clamp(from.x, label.left, label.Right()),
                 std::clamp(from.y, label.top, label.Bottom())};
  constexpr double kShortest = 5;  // points
  if (std::hypot(to.x - from.x, to.y - from.y) < kShortest) return;
  plot.canvas.AddLine({Role::kLeaderLine, point.series->number, static_cast<int>(point.index + 1)}, from, to,
                      labels.leaderStroke);
}

void DrawLabel(Plot& plot, const DrawnPoint& point, const LabelModel& label) {
  const RichText text = LabelText(plot.chart, *point.group, *point.series, point.index, label, point.share);
  if (text.IsEmpty()) return;
  const Rect bounds = plot.canvas.Bounds();
  TextBlock block = LayOut(text, plot.canvas.Measure());
  if (block.width > bounds.width * kWidestShare) {
    block = LayOut(text, plot.canvas.Measure(), bounds.width * kWidestShare);
  }
  const double keyRoom = label.showsKey ? kKeySide + 2 : 0;
  const Half half{(block.TurnedWidth() + keyRoom) / 2 + kLabelPadding, block.TurnedHeight() / 2};
  Point center = CenterOf(plot, point, label, half);
  if (label.layout) {
    center.x += label.layout->x.value_or(0) * bounds.width;
    center.y += label.layout->y.value_or(0) * bounds.height;
  }
  // a label stays on the chart
  const double right = bounds.width - half.width, bottom = bounds.height - half.height;
  center.x = std::max(std::min(center.x, right), half.width);
  center.y = std::max(std::min(center.y, bottom), half.height);
  const Tag tag{Role::kDataLabel, point.series->number, static_cast<int>(point.index + 1)};
  const Rect box{center.x - half.width, center.y - half.height, 2 * half.width, 2 * half.height};
  DrawLeader(plot, point, box);
  plot.canvas.Add(tag, Path().AddRect(box), label.style.fill, label.style.stroke);
  if (label.showsKey) {
    DrawKey(plot.canvas, plot.chart, {Role::kLegendKey, tag.series, tag.point},
            {box.left + kLabelPadding, center.y - kKeySide / 2, kKeySide, kKeySide});
  }
  DrawBlock(plot.canvas, tag, block, {center.x + keyRoom / 2, center.y});
}

}  // namespace

bool FitsInSlice(const DrawnPoint& slice, double width, double height) {
  const double radius = slice.circle.width / 2;
  if (slice.sweep >= 350) return width < radius;
  const double middle = slice.angle + slice.sweep / 2;
  const double distance = FarthestInside({width / 2, height / 2}, middle, radius - kGap);
  const Point direction = OnEllipse({-distance, -distance, 2 * distance, 2 * distance}, middle);
  // each corner has to lie between the slice's edges
  for (const double x : {-width / 2, width / 2}) {
    for (const double y : {-height / 2, height / 2}) {
      const Point corner{direction.x + x, direction.y + y};
      double angle = std::atan2(corner.x, -corner.y) / kRadian - middle;
      angle -= 360 * std::round(angle / 360);
      if (std::abs(angle) > slice.sweep / 2) return false;
    }
  }
  return true;
}

void DrawDataLabels(Plot& plot) {
  constexpr std::size_t kMostLabels = 20'000;
  std::size_t drawn = 0;
  for (const DrawnPoint& point : plot.points) {
    const LabelModel* label = point.series->labels.Of(point.index);
    if (label == nullptr) continue;
    if (++drawn > kMostLabels) {
      plot.canvas.Note("The chart has more data labels than are drawn; the rest is left out.");
      return;
    }
    DrawLabel(plot, point, *label);
  }
}

}  // namespace plotsmith::render

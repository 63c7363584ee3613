#include "render/labels/DataLabels.h"

#include <algorithm>
#include <cmath>

#include "render/labels/LabelText.h"
#include "render/labels/PieLabels.h"
#include "render/model/StyledShape.h"
#include "render/plot/LegendKey.h"

namespace plotsmith::render {
namespace {

constexpr double kGap = 1.5;          // points between a point and the label beside it
constexpr double kKeySide = 6;        // points; the edge of a legend key beside a label
constexpr double kWidestShare = 0.2;  // share of the chart's width; labels wrap at this width

/// Half of the width and of the height of a label with its padding.
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
  // The direction from the base of the bar to its end.
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

/// Returns the centre of a label on the outer side of a point in a radar chart.
Point CenterOutwards(const DrawnPoint& point, Point middle, Half half) {
  const Point center = point.box.Center();
  const double x = center.x - middle.x, y = center.y - middle.y, distance = std::hypot(x, y);
  const Point way = distance > 0.5 ? Point{x / distance, y / distance} : Point{0, -1};
  return {center.x + way.x * (point.box.width / 2 + half.width),
          center.y + way.y * (point.box.height / 2 + half.height)};
}

/// Returns the largest distance, in a direction, from the middle of a circle to the centre of a box that is
/// still inside the circle.
double FarthestInside(Half half, double degrees, double radius) {
  const double b = std::abs(std::sin(degrees * kRadian)) * half.width +
                   std::abs(std::cos(degrees * kRadian)) * half.height;
  const double rest = b * b + radius * radius - half.width * half.width - half.height * half.height;
  return rest > 0 ? std::max(std::sqrt(rest) - b, 0.0) : 0;
}

/// Returns the centre of a label outside of a slice that is as near as possible to the middle of its edge.
Point CenterBesideSlice(const DrawnPoint& point, Half half, double degrees) {
  const Point edge = OnEllipse(point.circle, degrees), way = OnEllipse({-1, -1, 2, 2}, degrees);
  const auto at = [&](double distance) {
    return Point{edge.x + way.x * distance, edge.y + way.y * distance};
  };
  double near = 0, far = half.width + half.height + point.box.height - point.circle.height;
  constexpr int kSteps = 20;
  for (int step = 0; step < kSteps; ++step) {
    const double middle = (near + far) / 2;
    const Point center = at(middle);
    const Rect box{center.x - half.width, center.y - half.height, 2 * half.width, 2 * half.height};
    (IsBesideSlice(point, box) ? far : near) = middle;
  }
  return at(far + kGap);
}

Point CenterInSlice(const DrawnPoint& point, Half half, std::string position) {
  const double middle = point.angle + point.sweep / 2;
  const double radius = point.circle.width / 2;
  // In 3-D, the circle is an ellipse. The label is stretched until the ellipse is a circle, and then compared
  // with it.
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

Point CenterAtPiece(const DrawnPoint& point, const std::string& position, Half half) {
  Point center = point.box.Center();
  if (IsBesidePiece(point, position, 2 * half.width, 2 * half.height)) {
    center.x = point.box.Right() + half.width + kGap;
  } else if (position == "inEnd") {
    center.x = point.box.Right() - half.width - kGap;
  }
  return center;
}

Point CenterOf(const Plot& plot, const DrawnPoint& point, const LabelModel& label, Half half) {
  switch (point.group->family) {
    case Family::kBar:
      return CenterAtBar(plot, point, label.position, half);
    case Family::kPie:
    case Family::kDoughnut:
    case Family::kOfPie:
      return point.IsPieceOfBar() ? CenterAtPiece(point, label.position, half)
                                  : CenterInSlice(point, half, label.position);
    case Family::kArea:
      return point.box.Center();
    case Family::kRadar:
      return CenterOutwards(point, plot.area.Center(), half);
    default:
      return CenterAtMarker(point, label.position, half);
  }
}

/// Returns true if a line crosses the circle of a slice.
bool CrossesCircle(const Rect& circle, Point from, Point to) {
  const Point middle = circle.Center();
  constexpr int kSamples = 32;
  for (int i = 0; i <= kSamples; ++i) {
    const double share = static_cast<double>(i) / kSamples;
    const double x = from.x + (to.x - from.x) * share - middle.x;
    const double y = from.y + (to.y - from.y) * share - middle.y;
    constexpr double kInside = 0.99;  // share of the radius
    if (std::hypot(x / (circle.width / 2), y / (circle.height / 2)) < kInside) return true;
  }
  return false;
}

/// Returns a straight line. If it would cross the circle, the line first goes around the circle as far as
/// necessary.
Path LeaderPath(const DrawnPoint& point, Point from, Point to) {
  constexpr double kAside = 2, kStep = 4, kMostTurn = 180;  // points and degrees
  const Rect& circle = point.circle;
  const Rect around{circle.left - kAside, circle.top - kAside, circle.width + 2 * kAside,
                    circle.height + 2 * kAside};
  const Point middle = circle.Center();
  double angle = point.angle + point.sweep / 2;
  const double wanted =
      std::atan2((to.x - middle.x) / circle.width, (middle.y - to.y) / circle.height) / kRadian;
  const double turn = std::remainder(wanted - angle, 360);
  Path path;
  path.MoveTo(from);
  Point at = from;
  for (double turned = 0; turned < kMostTurn && CrossesCircle(circle, at, to); turned += kStep) {
    at = OnEllipse(around, angle += turn < 0 ? -kStep : kStep);
    path.LineTo(at);
  }
  return path.LineTo(to);
}

/// Draws the leader line from a slice to a label that was moved away from it.
void DrawLeader(Plot& plot, const PlacedLabel& placed) {
  const DrawnPoint& point = *placed.point;
  const LabelsModel& labels = point.series->labels;
  const Rect label = placed.Box();
  const bool isPiece = point.IsPieceOfBar(), hasSlice = isPiece ? point.box.height > 0 : point.sweep > 0;
  if (!labels.leaderLines || !placed.moved || !hasSlice || !IsBesideSlice(point, label)) return;
  const Point from = isPiece ? Point{point.box.Right(), point.box.Center().y}
                             : OnEllipse(point.circle, point.angle + point.sweep / 2);
  Point to{std::clamp(from.x, label.left, label.Right()), std::clamp(from.y, label.top, label.Bottom())};
  if (to.x != from.x) to.y = label.Center().y;  // The line ends at the middle of a side.
  constexpr double kShortest = 5;               // points
  if (std::hypot(to.x - from.x, to.y - from.y) < kShortest) return;
  plot.canvas.Add({Role::kLeaderLine, point.series->number, static_cast<int>(point.index + 1)},
                  isPiece ? Path().MoveTo(from).LineTo(to) : LeaderPath(point, from, to), {},
                  labels.leaderStroke);
}

/// Lays out a label at its automatic position, or where its manual layout places it. The label stays on the
/// chart.
PlacedLabel PlaceLabel(const Plot& plot, const DrawnPoint& point, const LabelModel& label) {
  const RichText text = LabelText(plot.chart, *point.group, *point.series, point.index, label, point.share);
  PlacedLabel placed{&point, &label};
  if (text.IsEmpty()) return placed;
  const Rect bounds = plot.canvas.Bounds();
  placed.block = LayOut(text, plot.canvas.Measure());
  if (placed.block.width > bounds.width * kWidestShare) {
    placed.block = LayOut(text, plot.canvas.Measure(), bounds.width * kWidestShare);
  }
  placed.keyRoom = label.showsKey ? kKeySide + 2 : 0;
  placed.halfWidth = (placed.block.TurnedWidth() + placed.keyRoom) / 2 + kLabelPadding;
  placed.halfHeight = placed.block.TurnedHeight() / 2;
  Point& center = placed.center;
  center = CenterOf(plot, point, label, {placed.halfWidth, placed.halfHeight});
  if (label.layout) {
    placed.moved = true;
    center.x += label.layout->x.value_or(0) * bounds.width;
    center.y += label.layout->y.value_or(0) * bounds.height;
  }
  center.x = std::max(std::min(center.x, bounds.width - placed.halfWidth), placed.halfWidth);
  center.y = std::max(std::min(center.y, bounds.height - placed.halfHeight), placed.halfHeight);
  return placed;
}

void DrawLabel(Plot& plot, const PlacedLabel& placed) {
  const DrawnPoint& point = *placed.point;
  const LabelModel& label = *placed.label;
  const Tag tag{Role::kDataLabel, point.series->number, static_cast<int>(point.index + 1)};
  const Rect box = placed.Box();
  DrawLeader(plot, placed);
  AddTextFrame(plot.canvas, tag, box, label.style);
  if (label.showsKey) {
    DrawKey(plot.canvas, plot.chart, {Role::kLegendKey, tag.series, tag.point},
            {box.left + kLabelPadding, placed.center.y - kKeySide / 2, kKeySide, kKeySide});
  }
  DrawBlock(plot.canvas, tag, placed.block, {placed.center.x + placed.keyRoom / 2, placed.center.y});
}

}  // namespace

bool FitsInSlice(const DrawnPoint& slice, double width, double height) {
  const double radius = slice.circle.width / 2;
  if (slice.sweep >= 350) return width < radius;
  const double middle = slice.angle + slice.sweep / 2;
  const double distance = FarthestInside({width / 2, height / 2}, middle, radius - kGap);
  const Point direction = OnEllipse({-distance, -distance, 2 * distance, 2 * distance}, middle);
  // Each corner must be between the edges of the slice.
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

bool IsBesidePiece(const DrawnPoint& piece, const std::string& position, double width, double height) {
  if (position == "bestFit") return width > piece.box.width || height > piece.box.height;
  return position == "outEnd";
}

void DrawDataLabels(Plot& plot) {
  constexpr std::size_t kMostLabels = 20'000;
  std::vector<PlacedLabel> labels;
  for (const DrawnPoint& point : plot.points) {
    const LabelModel* label = point.series->labels.Of(point.index);
    if (label == nullptr) continue;
    if (labels.size() == kMostLabels) {
      plot.canvas.Note("The chart has more data labels than are drawn; the rest is left out.");
      break;
    }
    PlacedLabel placed = PlaceLabel(plot, point, *label);
    if (!placed.block.IsEmpty()) labels.push_back(std::move(placed));
  }
  if (const std::size_t leftOut = SpreadPieLabels(plot, labels); leftOut > 0) {
    plot.canvas.Note("The pie has no room for " + std::to_string(leftOut) +
                     " of its data labels, which are left out.");
  }
  for (const PlacedLabel& label : labels) DrawLabel(plot, label);
}

}  // namespace plotsmith::render

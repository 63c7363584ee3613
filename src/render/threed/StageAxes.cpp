#include "render/threed/StageAxes.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "render/axes/AxisMap.h"
#include "render/axes/DateAxis.h"
#include "render/axes/TickLabels.h"

namespace plotsmith::render {
namespace {

constexpr double kTickLength = 3.75;  // points
constexpr double kLabelGap = 5;       // points from the axis to its labels
constexpr double kInkOfLine = 0.8;    // share of the height of a line that its characters take
constexpr std::size_t kMostLabels = 1000;

Point Along(const Projection& projection, const Point3& from, const Point3& to, double share) {
  return projection.Project(projection.Place(
      from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share, from.z + (to.z - from.z) * share));
}

}  // namespace

StageAxes::StageAxes(const Stage& stage, const TextMeasure& measure, xlsx::DateSystem dates)
    : stage_(stage),
      measure_(measure),
      values_(ReadValues(dates)),
      categories_(stage.Categories().dates ? ReadDates(dates) : ReadCategories()),
      series_(ReadSeries()) {
  for (Ruler* ruler : {&values_, &categories_, &series_}) {
    if (ruler->axis == nullptr || ruler->axis->hidden || ruler->axis->tickLabels == "none") {
      ruler->labels.clear();
    }
  }
}

StageAxes::Ruler StageAxes::ReadValues(xlsx::DateSystem dates) const {
  Ruler ruler{&stage_.Values(), {}, {}};
  int number = 0;
  for (const Tick& tick : MajorTicks(stage_.Values(), dates)) {
    const double share = stage_.Value(tick.value);
    ruler.labels.push_back({tick.label, share, ++number});
    ruler.ticks.push_back(share);
  }
  return ruler;
}

StageAxes::Ruler StageAxes::ReadCategories() const {
  Ruler ruler{&stage_.Categories(), {}, {}};
  const auto& texts = stage_.Categories().categories;
  const std::size_t count = stage_.CategoryCount();
  const std::size_t every = (count + kMostLabels - 1) / kMostLabels;
  for (std::size_t i = 0; i < count; i += every) {
    const Span room = stage_.Category(i);
    const std::string text = i < texts.size() ? texts[i] : std::to_string(i + 1);
    ruler.labels.push_back({text, room.Middle(), static_cast<int>(i) + 1});
    if (stage_.PointsAreOnTicks()) {
      ruler.ticks.push_back(room.Middle());
      continue;
    }
    ruler.ticks.push_back(stage_.EdgeBefore(i));
    if (i + every >= count) ruler.ticks.push_back(stage_.EdgeBefore(i + 1));
  }
  return ruler;
}

StageAxes::Ruler StageAxes::ReadDates(xlsx::DateSystem dates) const {
  const AxisModel& axis = stage_.Categories();
  const AxisMap map(axis, 0, 1);
  Ruler ruler{&axis, {}, {}};
  int number = 0;
  for (const DateTick& tick : DateTicks(axis, dates)) {
    ruler.labels.push_back({tick.label, map.OfSlot(tick.slot), ++number});
    ruler.ticks.push_back(map.OfSlot(tick.slot - (axis.crossesBetween ? 0.5 : 0)));
  }
  return ruler;
}

StageAxes::Ruler StageAxes::ReadSeries() const {
  Ruler ruler{stage_.Series(), {}, {}};
  if (ruler.axis == nullptr) return ruler;
  const auto& all = stage_.Group().series;
  for (std::size_t i = 0; i < all.size(); ++i) {
    ruler.labels.push_back({all[i].name, stage_.Depth(i).Middle(), static_cast<int>(i) + 1});
    const bool onTicks = stage_.Group().family == Family::kSurface;
    ruler.ticks.push_back(onTicks ? stage_.Depth(i).Middle()
                                  : static_cast<double>(i) / static_cast<double>(all.size()));
  }
  if (stage_.Group().family != Family::kSurface) ruler.ticks.push_back(1);
  return ruler;
}

/// Returns the vertical edge that is leftmost on the picture.
StageAxes::BoxEdge StageAxes::UprightEdge(const Projection& projection) const {
  BoxEdge best;
  double leftmost = 0;
  bool first = true;
  for (const auto& [x, z] : {std::pair{0.0, 0.0}, {1.0, 0.0}, {0.0, 1.0}, {1.0, 1.0}}) {
    const double at = Along(projection, {x, 0, z}, {x, 1, z}, 0.5).x;
    if (!first && at >= leftmost - 1e-6) continue;
    first = false;
    leftmost = at;
    best = {{x, 0, z}, {x, 1, z}, Beside::kLeft};
  }
  return best;
}

/// Returns that one of two edges of the floor that is lower on the picture, and therefore nearer to the
/// viewer. If they have the same height, it is the first one.
StageAxes::BoxEdge StageAxes::LowerOf(const Projection& projection, BoxEdge first, const BoxEdge& second) {
  const double lower = Along(projection, second.from, second.to, 0.5).y;
  return lower > Along(projection, first.from, first.to, 0.5).y + 1e-6 ? second : first;
}

/// Returns the edge of the floor along X. Labels are beside it if it is steep, otherwise below it.
StageAxes::BoxEdge StageAxes::LowerEdge(const Projection& projection) const {
  BoxEdge edge = LowerOf(projection, {{0, 0, 0}, {1, 0, 0}}, {{0, 0, 1}, {1, 0, 1}});
  edge.beside = IsSteep(projection, edge) ? SideOf(projection, edge) : Beside::kBelow;
  return edge;
}

/// Returns the edge of the floor along Z.
StageAxes::BoxEdge StageAxes::SeriesEdge(const Projection& projection) const {
  BoxEdge edge = LowerOf(projection, {{1, 0, 0}, {1, 0, 1}}, {{0, 0, 0}, {0, 0, 1}});
  edge.beside = SideOf(projection, edge);
  // The labels of the vertical edge are also at the left.
  if (edge.beside == Beside::kLeft && !IsSteep(projection, edge)) edge.beside = Beside::kBelow;
  return edge;
}

bool StageAxes::IsSteep(const Projection& projection, const BoxEdge& edge) {
  const Point a = Along(projection, edge.from, edge.to, 0), b = Along(projection, edge.from, edge.to, 1);
  return std::abs(a.y - b.y) > std::abs(a.x - b.x);
}

/// Returns the side of the picture on which an edge of the floor is.
StageAxes::Beside StageAxes::SideOf(const Projection& projection, const BoxEdge& edge) {
  const double middle = Along(projection, {0, 0, 0}, {1, 0, 1}, 0.5).x;
  return Along(projection, edge.from, edge.to, 0.5).x < middle - 1e-6 ? Beside::kLeft : Beside::kRight;
}

std::vector<StageAxes::PlacedRuler> StageAxes::Place(const Projection& projection) const {
  const BoxEdge upright = UprightEdge(projection), lower = LowerEdge(projection);
  std::vector<PlacedRuler> placed = {{&values_, stage_.IsHorizontal() ? lower : upright},
                                     {&categories_, stage_.IsHorizontal() ? upright : lower}};
  if (series_.axis != nullptr) placed.push_back({&series_, SeriesEdge(projection)});
  // An edge in the direction of view doesn't show its axis.
  std::erase_if(placed, [&](const PlacedRuler& one) {
    const Point a = Along(projection, one.edge.from, one.edge.to, 0);
    const Point b = Along(projection, one.edge.from, one.edge.to, 1);
    constexpr double kShortest = 1;  // points
    return std::hypot(a.x - b.x, a.y - b.y) < kShortest;
  });
  return placed;
}

Rect StageAxes::PlacedLabel::Bounds() const {
  const double width = block.TurnedWidth(), height = block.TurnedHeight();
  return {center.x - width / 2, center.y - height / 2, width, height};
}

StageAxes::PlacedLabel StageAxes::PlaceLabel(const PlacedRuler& placed, const Label& label, TextBlock block,
                                             const Projection& projection) const {
  Point center = Along(projection, placed.edge.from, placed.edge.to, label.share);
  switch (placed.edge.beside) {
    case Beside::kLeft:
      center.x -= kLabelGap + block.TurnedWidth() / 2;
      break;
    case Beside::kRight:
      center.x += kLabelGap + block.TurnedWidth() / 2;
      break;
    case Beside::kBelow:
      center.y += kLabelGap + block.TurnedHeight() / 2;
      break;
  }
  return {&label, std::move(block), center};
}

std::vector<StageAxes::PlacedLabel> StageAxes::LabelsOf(const PlacedRuler& placed,
                                                        const Projection& projection) const {
  const auto& labels = placed.ruler->labels;
  if (labels.empty()) return {};
  const AxisModel& axis = *placed.ruler->axis;
  Point step{kUnlimited, kUnlimited};  // the distance from one label to the next, in points
  if (labels.size() > 1) {
    const Point a = Along(projection, placed.edge.from, placed.edge.to, labels[0].share);
    const Point b = Along(projection, placed.edge.from, placed.edge.to, labels[1].share);
    step = {std::abs(a.x - b.x), std::abs(a.y - b.y)};
  }
  // Texts below the picture are wrapped before any label is left out.
  const bool breaks = placed.edge.beside == Beside::kBelow && !axis.IsOfValues() && !axis.text.rotation;
  double room = breaks ? std::max(step.x - kLabelGap, 1.0) : kUnlimited;
  for (const Label& label : labels) {
    if (breaks) room = std::max(room, WidestWord(label.text, axis.text.font, measure_));
  }
  double widest = 1, highest = 1;
  std::vector<PlacedLabel> all;
  for (const Label& label : labels) {
    all.push_back(PlaceLabel(placed, label, LayOut(label.text, axis.text, measure_, room), projection));
    widest = std::max(widest, all.back().block.TurnedWidth() + kLabelGap);
    highest = std::max(highest, all.back().block.TurnedHeight() * kInkOfLine);
  }
  // Labels don't touch if there is a distance between them in one of the directions.
  const double fitting = std::max({step.x / widest, step.y / highest, 1e-3});
  std::size_t stride = static_cast<std::size_t>(std::max(std::ceil(1 / fitting - 1e-6), 1.0));
  if (!axis.IsOfValues() && axis.labelSkip > 0) stride = static_cast<std::size_t>(axis.labelSkip);
  std::vector<PlacedLabel> shown;
  for (std::size_t i = 0; i < all.size(); i += stride) shown.push_back(std::move(all[i]));
  return shown;
}

Rect StageAxes::PlacedGroup::Bounds() const {
  const double width = block.TurnedWidth(), height = block.TurnedHeight();
  Rect bounds{center.x - width / 2, center.y - height / 2, width, height};
  for (const auto& [from, to] : lines) {
    bounds = Union(Union(bounds, {from.x, from.y, 0, 0}), {to.x, to.y, 0, 0});
  }
  return bounds;
}

/// Returns the direction from an edge of the box to its labels.
Point StageAxes::DirectionOf(Beside beside) {
  if (beside == Beside::kBelow) return {0, 1};
  return {beside == Beside::kLeft ? -1.0 : 1.0, 0};
}

StageAxes::PlacedGroup StageAxes::PlaceGroup(const PlacedRuler& placed, const CategoryGroup& group,
                                             double distance, const Projection& projection) const {
  const auto at = [&](double share) {
    return Along(projection, placed.edge.from, placed.edge.to, std::clamp(share, 0.0, 1.0));
  };
  const Span first = stage_.Category(group.first), last = stage_.Category(group.end - 1);
  const Point a = at(std::min(first.from, last.from)), b = at(std::max(first.to, last.to));
  const Point way = DirectionOf(placed.edge.beside);
  const bool below = placed.edge.beside == Beside::kBelow;
  TextStyle style = placed.ruler->axis->text;
  style.rotation = below ? 0 : -90;
  PlacedGroup result;
  result.number = static_cast<int>(group.first) + 1;
  result.block = LayOut(group.text, style, measure_);
  const double depth = result.block.height;
  Shorten(result.block, (below ? std::abs(b.x - a.x) : std::abs(b.y - a.y)) - 2, measure_);
  const double middle = distance + depth / 2, end = distance + depth;
  result.center = {(a.x + b.x) / 2 + way.x * middle, (a.y + b.y) / 2 + way.y * middle};
  const auto addLine = [&](Point edge, bool isEndOfAxis) {
    // If the axis ends on a category, a line would cross the label.
    if (isEndOfAxis && stage_.PointsAreOnTicks()) return;
    result.lines.push_back({edge, {edge.x + way.x * end, edge.y + way.y * end}});
  };
  addLine(a, std::min(first.from, last.from) <= 0);
  addLine(b, std::max(first.to, last.to) >= 1);
  return result;
}

std::vector<StageAxes::PlacedGroup> StageAxes::GroupsOf(const PlacedRuler& placed,
                                                        const std::vector<PlacedLabel>& labels,
                                                        const Projection& projection) const {
  std::vector<PlacedGroup> groups;
  if (placed.ruler != &categories_ || labels.empty()) return groups;
  const bool below = placed.edge.beside == Beside::kBelow;
  double distance = kLabelGap;
  for (const PlacedLabel& label : labels) {
    const double depth = below ? label.block.TurnedHeight() : label.block.TurnedWidth();
    distance = std::max(distance, kLabelGap + depth);
  }
  for (const CategoryLevel& level : placed.ruler->axis->outerLevels) {
    distance += kLabelGap / 2;
    double depth = 0;
    for (const CategoryGroup& group : level) {
      if (group.first >= stage_.CategoryCount() || groups.size() >= kMostLabels) break;
      CategoryGroup shown = group;
      shown.end = std::min(shown.end, stage_.CategoryCount());
      groups.push_back(PlaceGroup(placed, shown, distance, projection));
      depth = std::max(depth, measure_.Measure(group.text, placed.ruler->axis->text.font).Height());
    }
    distance += depth;
  }
  return groups;
}

Rect StageAxes::BoundsOf(const Projection& projection) const {
  Rect bounds;
  bool first = true;
  for (const double x : {0.0, 1.0}) {
    for (const double y : {0.0, 1.0}) {
      for (const double z : {0.0, 1.0}) {
        const Point corner = projection.Project(projection.Place(x, y, z));
        const Rect at{corner.x, corner.y, 0, 0};
        bounds = first ? at : Union(bounds, at);
        first = false;
      }
    }
  }
  for (const PlacedRuler& placed : Place(projection)) {
    const auto labels = LabelsOf(placed, projection);
    for (const PlacedLabel& label : labels) bounds = Union(bounds, label.Bounds());
    for (const PlacedGroup& group : GroupsOf(placed, labels, projection))
      bounds = Union(bounds, group.Bounds());
  }
  return bounds;
}

void StageAxes::DrawRuler(Canvas& canvas, const PlacedRuler& placed, const Projection& projection) const {
  const AxisModel& axis = *placed.ruler->axis;
  if (axis.hidden) return;
  canvas.AddLine({Role::kAxisLine, axis.number}, Along(projection, placed.edge.from, placed.edge.to, 0),
                 Along(projection, placed.edge.from, placed.edge.to, 1), axis.line);
  if (axis.majorTicks == "out" || axis.majorTicks == "cross") {
    const Point way = placed.edge.beside == Beside::kBelow  ? Point{0, kTickLength}
                      : placed.edge.beside == Beside::kLeft ? Point{-kTickLength, 0}
                                                            : Point{kTickLength, 0};
    int number = 0;
    for (const double share : placed.ruler->ticks) {
      const Point at = Along(projection, placed.edge.from, placed.edge.to, share);
      canvas.AddLine({Role::kTickMark, axis.number, ++number}, at, {at.x + way.x, at.y + way.y}, axis.line);
    }
  }
  constexpr TextAlign kAligns[] = {TextAlign::kEnd, TextAlign::kMiddle, TextAlign::kStart};
  const auto labels = LabelsOf(placed, projection);
  for (const PlacedLabel& label : labels) {
    DrawBlock(canvas, {Role::kTickLabel, axis.number, label.label->number}, label.block, label.center,
              kAligns[static_cast<std::size_t>(placed.edge.beside)]);
  }
  for (const PlacedGroup& group : GroupsOf(placed, labels, projection)) {
    DrawBlock(canvas, {Role::kTickLabel, axis.number, group.number}, group.block, group.center);
    for (const auto& [from, to] : group.lines)
      canvas.AddLine({Role::kTickMark, axis.number}, from, to, axis.line);
  }
}

void StageAxes::Draw(Canvas& canvas, const Projection& projection) const {
  for (const PlacedRuler& placed : Place(projection)) DrawRuler(canvas, placed, projection);
}

}  // namespace plotsmith::render

#include "render/threed/StageAxes.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "render/axes/AxisMap.h"

namespace plotsmith::render {
namespace {

constexpr double kTickLength = 3.75;  // points
constexpr double kLabelGap = 5;       // from the axis to its labels
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
      categories_(ReadCategories()),
      series_(ReadSeries()) {
  for (Ruler* ruler : {&values_, &categories_, &series_}) Measure(*ruler);
}

StageAxes::Ruler StageAxes::ReadValues(xlsx::DateSystem dates) const {
  Ruler ruler{&stage_.Values(), {}, {}};
  int number = 0;
  for (const Tick& tick : MajorTicks(stage_.Values(), dates)) {
    const double share = stage_.Value(tick.value);
    ruler.labels.push_back({tick.label, share, {}, ++number});
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
    ruler.labels.push_back({text, room.Middle(), {}, static_cast<int>(i) + 1});
    if (stage_.StandsOnTicks()) {
      ruler.ticks.push_back(room.Middle());
      continue;
    }
    ruler.ticks.push_back(room.from);
    if (i + every >= count) ruler.ticks.push_back(room.to);
  }
  return ruler;
}

StageAxes::Ruler StageAxes::ReadSeries() const {
  Ruler ruler{stage_.Series(), {}, {}};
  if (ruler.axis == nullptr) return ruler;
  const auto& all = stage_.Group().series;
  for (std::size_t i = 0; i < all.size(); ++i) {
    ruler.labels.push_back({all[i].name, stage_.Depth(i).Middle(), {}, static_cast<int>(i) + 1});
    ruler.ticks.push_back(static_cast<double>(i) / static_cast<double>(all.size()));
  }
  ruler.ticks.push_back(1);
  return ruler;
}

void StageAxes::Measure(Ruler& ruler) const {
  if (ruler.axis == nullptr || ruler.axis->hidden || ruler.axis->tickLabels == "none") ruler.labels.clear();
  for (Label& label : ruler.labels) label.extent = measure_.Measure(label.text, ruler.axis->text.font);
}

/// The upright edge that is leftmost on the picture.
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

/// The edge along x that is lowest on the picture.
StageAxes::BoxEdge StageAxes::LowerEdge(const Projection& projection) const {
  const double front = Along(projection, {0, 0, 0}, {1, 0, 0}, 0.5).y;
  const double back = Along(projection, {0, 0, 1}, {1, 0, 1}, 0.5).y;
  const double z = back > front + 1e-6 ? 1 : 0;
  return {{0, 0, z}, {1, 0, z}, Beside::kBelow};
}

/// The edge of the floor along z that is rightmost on the picture.
StageAxes::BoxEdge StageAxes::SeriesEdge(const Projection& projection) const {
  const double left = Along(projection, {0, 0, 0}, {0, 0, 1}, 0.5).x;
  const double right = Along(projection, {1, 0, 0}, {1, 0, 1}, 0.5).x;
  const double x = left > right ? 0 : 1;
  return {{x, 0, 0}, {x, 0, 1}, Beside::kRight};
}

std::vector<StageAxes::PlacedRuler> StageAxes::Place(const Projection& projection) const {
  const BoxEdge upright = UprightEdge(projection), lower = LowerEdge(projection);
  std::vector<PlacedRuler> placed = {{&values_, stage_.Lying() ? lower : upright},
                                     {&categories_, stage_.Lying() ? upright : lower}};
  if (series_.axis != nullptr) placed.push_back({&series_, SeriesEdge(projection)});
  return placed;
}

std::size_t StageAxes::StrideOf(const PlacedRuler& placed, const Projection& projection) const {
  const auto& labels = placed.ruler->labels;
  if (labels.size() < 2) return 1;
  const AxisModel& axis = *placed.ruler->axis;
  if (!axis.IsOfValues() && axis.labelSkip > 0) return static_cast<std::size_t>(axis.labelSkip);
  double widest = 0, highest = 0;
  for (const Label& label : labels) {
    widest = std::max(widest, label.extent.width + kLabelGap);
    highest = std::max(highest, label.extent.Height());
  }
  const Point a = Along(projection, placed.edge.from, placed.edge.to, labels[0].share);
  const Point b = Along(projection, placed.edge.from, placed.edge.to, labels[1].share);
  // two labels are apart if they are so in one of the directions
  const double across = std::abs(a.x - b.x) / widest, down = std::abs(a.y - b.y) / highest;
  const double fitting = std::max({across, down, 1e-3});
  return std::max<std::size_t>(static_cast<std::size_t>(std::ceil(1 / fitting - 1e-6)), 1);
}

TextItem StageAxes::ItemOf(const PlacedRuler& placed, const Label& label,
                           const Projection& projection) const {
  const AxisModel& axis = *placed.ruler->axis;
  const Point at = Along(projection, placed.edge.from, placed.edge.to, label.share);
  TextItem item;
  item.text = label.text;
  item.font = axis.text.font;
  item.color = axis.text.color;
  item.width = label.extent.width;
  item.ascent = label.extent.ascent;
  item.descent = label.extent.descent;
  const double middle = at.y + (label.extent.ascent - label.extent.descent) / 2;
  switch (placed.edge.beside) {
    case Beside::kLeft:
      item.anchor = {at.x - kLabelGap, middle};
      item.align = TextAlign::kEnd;
      break;
    case Beside::kRight:
      item.anchor = {at.x + kLabelGap, middle};
      break;
    case Beside::kBelow:
      item.anchor = {at.x, at.y + kLabelGap + label.extent.ascent};
      item.align = TextAlign::kMiddle;
      break;
  }
  return item;
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
    for (const Label& label : placed.ruler->labels) {
      bounds = Union(bounds, ItemOf(placed, label, projection).Bounds());
    }
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
  const std::size_t stride = StrideOf(placed, projection);
  for (std::size_t i = 0; i < placed.ruler->labels.size(); i += stride) {
    const Label& label = placed.ruler->labels[i];
    canvas.AddText({Role::kTickLabel, axis.number, label.number}, ItemOf(placed, label, projection));
  }
}

void StageAxes::Draw(Canvas& canvas, const Projection& projection) const {
  for (const PlacedRuler& placed : Place(projection)) DrawRuler(canvas, placed, projection);
}

}  // namespace plotsmith::render

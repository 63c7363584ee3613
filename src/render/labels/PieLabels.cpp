#include "render/labels/PieLabels.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

namespace plotsmith::render {
namespace {

constexpr double kSliceGap = 1.5;   // points between a slice and the label beside it
constexpr double kRounding = 1e-6;  // points that rounding may add
constexpr double kSlack = 0.01;     // points by which labels may touch

/// Returns whether a label may be moved. It may if it is outside of its slice, at an automatic position.
bool IsMovable(const PlacedLabel& label) {
  const Family family = label.point->group->family;
  const bool isPie = family == Family::kPie || family == Family::kOfPie;
  const bool isOutside = label.label->position == "bestFit" || label.label->position == "outEnd";
  return isPie && isOutside && !label.label->layout && IsBesideSlice(*label.point, label.Box());
}

/// Returns the middle of a slice in degrees clockwise from twelve o'clock, from 0 to 360.
double MiddleOf(const DrawnPoint& slice) {
  const double angle = std::fmod(slice.angle + slice.sweep / 2, 360);
  return angle < 0 ? angle + 360 : angle;
}

bool IsRight(const PlacedLabel& label) { return MiddleOf(*label.point) < 180; }

/// Labels that are one below the other and touch.
struct Cluster {
  std::size_t first, count;
  double wanted;  ///< the sum of the cluster tops that would leave each label at its own position
  double height;
};

/// Moves labels up and down, as little as possible, until none overlaps the next. They must be sorted from
/// top to bottom. They stay between `least` and `most`.
void SpreadDown(const std::vector<PlacedLabel*>& labels, double least, double most) {
  std::vector<Cluster> clusters;
  const auto topOf = [&](const Cluster& cluster) {
    return std::clamp(cluster.wanted / static_cast<double>(cluster.count), least,
                      std::max(most - cluster.height, least));
  };
  for (std::size_t i = 0; i < labels.size(); ++i) {
    Cluster cluster{i, 1, labels[i]->Box().top, 2 * labels[i]->halfHeight};
    while (!clusters.empty() && topOf(clusters.back()) + clusters.back().height > topOf(cluster)) {
      const Cluster& above = clusters.back();
      cluster = {above.first, above.count + cluster.count,
                 above.wanted + cluster.wanted - above.height * static_cast<double>(cluster.count),
                 above.height + cluster.height};
      clusters.pop_back();
    }
    clusters.push_back(cluster);
  }
  for (const Cluster& cluster : clusters) {
    double top = topOf(cluster);
    for (std::size_t i = cluster.first; i < cluster.first + cluster.count; ++i) {
      labels[i]->center.y = top + labels[i]->halfHeight;
      top += 2 * labels[i]->halfHeight;
    }
  }
}

/// Moves a label horizontally outwards until it is beside its slice, on its own side of the circle, and has
/// room for a leader line.
void MoveBeside(PlacedLabel& label, const Rect& room, double lineRoom) {
  label.moved = true;
  const double middle = label.point->circle.Center().x, way = IsRight(label) ? 1 : -1;
  const auto isClear = [&](double distance) {
    label.center.x = middle + way * distance;
    return IsBesideSlice(*label.point, label.Box());
  };
  // The label must not cover the line that goes up or down to it.
  const double edge = OnEllipse(label.point->circle, MiddleOf(*label.point)).x;
  double near = label.halfWidth + kSliceGap + way * (edge - middle);
  double far = label.halfWidth + label.point->circle.width / 2;
  if (!isClear(near)) {
    constexpr int kSteps = 20;
    for (int step = 0; step < kSteps; ++step) {
      const double between = (near + far) / 2;
      (isClear(between) ? far : near) = between;
    }
    near = far + kSliceGap + lineRoom;
  }
  const double least = room.left + label.halfWidth, most = room.Right() - label.halfWidth;
  label.center.x = std::max(std::min(middle + way * near, most), least);
}

bool OverlapsAny(const PlacedLabel& label, const std::vector<PlacedLabel*>& others) {
  return std::any_of(others.begin(), others.end(), [&](const PlacedLabel* other) {
    return other != &label && Overlap(label.Box(), other->Box(), kSlack);
  });
}

/// Removes the labels of the smallest slices until the others fit into the height. If slices have equal
/// sizes, multiples of the golden ratio determine which labels are removed, so that the remaining ones are
/// spread evenly.
void RemoveLabelsWithoutSpace(std::vector<PlacedLabel*>& side, double height) {
  struct Candidate {
    double share, turn;
    PlacedLabel* label;
  };
  std::vector<Candidate> candidates;
  double all = 0;
  for (PlacedLabel* label : side) {
    const double multiple = static_cast<double>(candidates.size()) * std::numbers::phi;
    candidates.push_back({label->point->share, multiple - std::floor(multiple), label});
    all += 2 * label->halfHeight;
  }
  std::sort(candidates.begin(), candidates.end(), [](const Candidate& a, const Candidate& b) {
    return std::pair(a.share, a.turn) < std::pair(b.share, b.turn);
  });
  for (const Candidate& least : candidates) {
    if (all <= height + kRounding) break;
    all -= 2 * least.label->halfHeight;
    least.label->leftOut = true;
  }
  std::erase_if(side, [](const PlacedLabel* label) { return label->leftOut; });
}

/// Returns where moved labels may be: in the plot area, or on the whole chart if the user set the plot area.
Rect RoomOf(const Plot& plot) { return plot.chart.layout ? plot.canvas.Bounds() : plot.area; }

/// Returns the space for a leader line to a label that was moved by `way`. Both are in points.
double LineRoomFor(double way) {
  constexpr double kShare = 0.3, kMost = 12;  // share of the distance; points
  return std::min(kShare * way, kMost);
}

void SpreadSide(std::vector<PlacedLabel*>& side, const Rect& room) {
  RemoveLabelsWithoutSpace(side, room.height);
  const bool right = !side.empty() && IsRight(*side.front());
  std::stable_sort(side.begin(), side.end(), [&](const PlacedLabel* a, const PlacedLabel* b) {
    const double first = MiddleOf(*a->point), second = MiddleOf(*b->point);
    return right ? first < second : first > second;
  });
  std::vector<double> before;
  for (const PlacedLabel* label : side) before.push_back(label->center.y);
  SpreadDown(side, room.top, room.Bottom());
  for (std::size_t i = 0; i < side.size(); ++i) {
    const double way = std::abs(side[i]->center.y - before[i]);
    if (way > kSlack) MoveBeside(*side[i], room, LineRoomFor(way));
  }
}

}  // namespace

bool IsBesideSlice(const DrawnPoint& point, const Rect& label) {
  if (point.IsPieceOfBar()) return !Overlap(point.box, label);
  const Point middle = point.circle.Center();
  for (const double drop : {0.0, point.box.height - point.circle.height}) {
    const Point nearest{std::clamp(middle.x, label.left, label.Right()),
                        std::clamp(middle.y + drop, label.top, label.Bottom())};
    const double across = (nearest.x - middle.x) / (point.circle.width / 2);
    const double down = (nearest.y - middle.y - drop) / (point.circle.height / 2);
    if (std::hypot(across, down) < 1) return false;
  }
  return true;
}

namespace {

/// Moves the labels to the right of a bar of pie so that they don't touch.
void SpreadBesideBar(std::vector<PlacedLabel*> labels, const Rect& room) {
  std::stable_sort(labels.begin(), labels.end(),
                   [](const PlacedLabel* a, const PlacedLabel* b) { return a->center.y < b->center.y; });
  const bool crowded = std::any_of(labels.begin(), labels.end(),
                                   [&](const PlacedLabel* label) { return OverlapsAny(*label, labels); });
  if (!crowded) return;
  RemoveLabelsWithoutSpace(labels, room.height);
  std::vector<double> before;
  for (const PlacedLabel* label : labels) before.push_back(label->center.y);
  SpreadDown(labels, room.top, room.Bottom());
  double farthest = 0;
  for (std::size_t i = 0; i < labels.size(); ++i) {
    const double way = std::abs(labels[i]->center.y - before[i]);
    labels[i]->moved = way > kSlack;
    farthest = std::max(farthest, way);
  }
  for (PlacedLabel* label : labels) {
    const double most = std::max(room.Right() - label->halfWidth, label->center.x);
    label->center.x = std::min(label->center.x + LineRoomFor(farthest), most);
  }
}

/// Moves a label beside a circle up or down, as little as possible, until it touches no other label. Returns
/// false if there is no space for it.
bool MoveAway(PlacedLabel& label, const std::vector<PlacedLabel*>& others, const Rect& room) {
  constexpr int kSteps = 30;
  constexpr double kStep = 2;  // points
  const double from = label.center.y;
  for (int step = 1; step <= kSteps; ++step) {
    for (const double way : {-kStep * step, kStep * step}) {
      label.center.y = from + way;
      const Rect box = label.Box();
      if (box.top < room.top || box.Bottom() > room.Bottom()) continue;
      MoveBeside(label, room, 0);
      if (!OverlapsAny(label, others)) return true;
    }
  }
  return false;
}

/// Moves the labels outside of a circle so that they don't touch.
void SpreadAroundCircle(const std::vector<PlacedLabel*>& labels, const Rect& room) {
  std::vector<PlacedLabel*> left, right;
  for (PlacedLabel* label : labels) (IsRight(*label) ? right : left).push_back(label);
  for (std::vector<PlacedLabel*>* side : {&right, &left}) {
    const bool crowded = std::any_of(side->begin(), side->end(),
                                     [&](const PlacedLabel* label) { return OverlapsAny(*label, *side); });
    if (crowded) SpreadSide(*side, room);
  }
  // Labels of both sides may touch above and below the circle.
  for (PlacedLabel* label : right) {
    for (PlacedLabel* other : left) {
      if (!Overlap(label->Box(), other->Box(), kSlack)) continue;
      MoveBeside(*label, room, 0);
      MoveBeside(*other, room, 0);
    }
  }
  for (PlacedLabel* label : right) label->leftOut = OverlapsAny(*label, left);
}

}  // namespace

std::size_t SpreadPieLabels(const Plot& plot, std::vector<PlacedLabel>& labels) {
  std::vector<PlacedLabel*> first, second;
  for (PlacedLabel& label : labels) {
    if (IsMovable(label)) (label.point->isInSecondPlot ? second : first).push_back(&label);
  }
  const Rect room = RoomOf(plot);
  SpreadAroundCircle(first, room);
  const bool isBar = !second.empty() && second.front()->point->IsPieceOfBar();
  isBar ? SpreadBesideBar(second, room) : SpreadAroundCircle(second, room);
  // Labels of both plots may touch in the gap between them.
  std::vector<PlacedLabel*> others = first;
  others.insert(others.end(), second.begin(), second.end());
  const auto isLeftOut = [](const PlacedLabel* label) { return label->leftOut; };
  std::erase_if(first, isLeftOut);
  std::erase_if(second, isLeftOut);
  std::erase_if(others, isLeftOut);
  for (PlacedLabel* label : second) {
    if (!OverlapsAny(*label, first)) continue;
    label->leftOut = isBar || !MoveAway(*label, others, room);
  }
  return std::erase_if(labels, [](const PlacedLabel& label) { return label.leftOut; });
}

}  // namespace plotsmith::render

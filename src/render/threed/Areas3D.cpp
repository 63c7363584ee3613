#include "render/threed/Areas3D.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>
#include <vector>

#include "render/plot/Plot.h"
#include "render/threed/Solids.h"

namespace plotsmith::render {
namespace {

/// A border of an area: a share of the value axis for each category.
using Border = std::vector<double>;

/// Returns the lower and the upper border of each series. The borders are stacked if the group is. A missing
/// value adds nothing.
std::vector<std::pair<Border, Border>> BordersOf(const Stage& stage) {
  const GroupModel& group = stage.Group();
  const Extents extents = StackValues(group);
  const std::size_t count = stage.CategoryCount();
  Border stack(count, stage.Value(group.IsStacked() ? 0 : stage.Base()));
  std::vector<std::pair<Border, Border>> borders;
  for (const std::vector<double>& values : extents.to) {
    Border above = stack;
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (std::isfinite(values[i])) above[i] = stage.Value(values[i]);
    }
    borders.emplace_back(stack, above);
    if (group.IsStacked()) stack = std::move(above);
  }
  return borders;
}

/// Keeps a point for its label. A point without a value isn't kept.
void AddPoint(Plot& plot, const GroupModel& group, std::size_t series, std::size_t point, Point at) {
  const SeriesModel& one = group.series[series];
  if (point >= one.values.size() || !std::isfinite(one.values[point])) return;
  plot.Keep({&group, &one, point, {at.x, at.y, 0, 0}});
}

/// Returns the numbers of the series, from 0, in painting order.
std::vector<std::size_t> SeriesBackToFront(const Stage& stage, double eye) {
  std::vector<double> middles;
  for (std::size_t s = 0; s < stage.Group().series.size(); ++s) middles.push_back(stage.Depth(s).Middle());
  return BackToFront(middles, eye);
}

/// Returns the intervals between neighbouring categories in painting order. The number of an interval is that
/// of its first category, from 0.
std::vector<std::size_t> StretchesBackToFront(const Stage& stage, double eye) {
  std::vector<double> middles;
  for (std::size_t i = 0; i + 1 < stage.CategoryCount(); ++i) {
    middles.push_back((stage.Category(i).Middle() + stage.Category(i + 1).Middle()) / 2);
  }
  return BackToFront(middles, eye);
}

/// A part of a border between two neighbouring categories.
struct Edge {
  double from = 0, to = 0;

  double At(double share) const { return from + (to - from) * share; }
};
Edge EdgeOf(const Border& border, std::size_t stretch) { return {border[stretch], border[stretch + 1]}; }

class AreaPainter {
 public:
  AreaPainter(Plot& plot, const Stage& stage, const Projection& projection)
      : plot_(plot),
        canvas_(plot.canvas),
        stage_(stage),
        projection_(projection),
        eye_(stage.EyeShares(projection)),
        borders_(BordersOf(stage)),
        stretches_(StretchesBackToFront(stage, eye_.x)) {}

  void Paint() {
    if (stage_.Group().IsStacked()) {
      std::vector<std::size_t> stack(borders_.size());
      std::iota(stack.begin(), stack.end(), 0);
      return PaintStack(stack);
    }
    for (const std::size_t series : SeriesBackToFront(stage_, eye_.z)) PaintStack({series});
  }

 private:
  /// Paints stacked areas: their strips, their ends, and then their fronts. The fronts are all in one plane,
  /// in front of the other faces.
  void PaintStack(const std::vector<std::size_t>& stack) {
    for (const std::size_t stretch : stretches_) {
      const auto seen = [&](std::size_t series) {
        const auto& [below, above] = borders_[series];
        return above[stretch] != below[stretch] || above[stretch + 1] != below[stretch + 1];
      };
      const auto lowest = std::find_if(stack.begin(), stack.end(), seen);
      const auto highest = std::find_if(stack.rbegin(), stack.rend(), seen);
      if (lowest != stack.end()) PaintStretch(stretch, *lowest, *highest);
    }
    for (const std::size_t category : {std::size_t{0}, stage_.CategoryCount() - 1}) {
      for (const std::size_t series : stack) PaintEnd(series, category);
    }
    for (const std::size_t series : stack) PaintFront(series);
  }

  /// Paints the lower and the upper strip between two categories. If the borders cross, the strips are
  /// exchanged at the crossing.
  void PaintStretch(std::size_t stretch, std::size_t lowest, std::size_t highest) {
    const Edge below = EdgeOf(borders_[lowest].first, stretch),
               above = EdgeOf(borders_[highest].second, stretch);
    const double first = above.from - below.from, last = above.to - below.to;
    std::vector<double> cuts = {0, 1};
    if (first * last < 0) cuts.insert(cuts.begin() + 1, first / (first - last));
    for (std::size_t i = 0; i + 1 < cuts.size(); ++i) {
      const double middle = (cuts[i] + cuts[i + 1]) / 2;
      const bool upright = above.At(middle) >= below.At(middle);
      PaintStrip(stretch, cuts[i], cuts[i + 1], below, lowest, !upright);
      PaintStrip(stretch, cuts[i], cuts[i + 1], above, highest, upright);
    }
  }

  /// Paints a strip over the depth of a series. If `up` is true, its outside is above; otherwise it is below.
  void PaintStrip(std::size_t stretch, double from, double to, const Edge& edge, std::size_t series,
                  bool up) {
    const double left = stage_.Category(stretch).Middle(), right = stage_.Category(stretch + 1).Middle();
    const Edge across{left, right};
    const Span depth = stage_.Depth(series);
    const auto at = [&](double share, double back) {
      return stage_.At(projection_, across.At(share), edge.At(share), back);
    };
    Face face = {at(from, depth.from), at(to, depth.from), at(to, depth.to), at(from, depth.to)};
    if (up != (left < right)) std::reverse(face.begin(), face.end());
    AddFaces(canvas_, projection_, {std::move(face)}, LookOf(series, Role::kSide));
  }

  void PaintEnd(std::size_t series, std::size_t category) {
    const auto& [below, above] = borders_[series];
    const auto [low, high] = std::minmax(below[category], above[category]);
    const Span depth = stage_.Depth(series);
    const double across = stage_.Category(category).Middle();
    Face face;
    for (const auto& [value, back] : {std::pair{low, depth.from}, std::pair{low, depth.to},
                                      std::pair{high, depth.to}, std::pair{high, depth.from}}) {
      face.push_back(stage_.At(projection_, across, value, back));
    }
    if (across < 0.5) std::reverse(face.begin(), face.end());  // This is the left end.
    AddFaces(canvas_, projection_, {std::move(face)}, LookOf(series, Role::kSide));
  }

  void PaintFront(std::size_t series) {
    const Span depth = stage_.Depth(series);
    if (eye_.z >= depth.from && eye_.z <= depth.to) return;
    const double place = eye_.z < depth.from ? depth.from : depth.to;
    const auto& [below, above] = borders_[series];
    Face face;
    const auto add = [&](std::size_t category, const Border& border) {
      face.push_back(stage_.At(projection_, stage_.Category(category).Middle(), border[category], place));
    };
    for (std::size_t i = 0; i < above.size(); ++i) add(i, above);
    for (std::size_t i = below.size(); i-- > 0;) add(i, below);
    AddSheet(canvas_, projection_, face, LookOf(series, Role::kArea));
    for (std::size_t i = 0; i < above.size(); ++i) {
      const Point at = projection_.Project(
          stage_.At(projection_, stage_.Category(i).Middle(), (above[i] + below[i]) / 2, place));
      AddPoint(plot_, stage_.Group(), series, i, at);
    }
  }

  Look LookOf(std::size_t series, Role role) const {
    const SeriesModel& one = stage_.Group().series[series];
    return {{role, one.number, 0}, one.style.fill, one.style.stroke};
  }

  Plot& plot_;
  Canvas& canvas_;
  const Stage& stage_;
  const Projection& projection_;
  Point3 eye_;
  std::vector<std::pair<Border, Border>> borders_;
  std::vector<std::size_t> stretches_;
};

/// Paints the line of a series as a ribbon.
void PaintRibbon(Plot& plot, const Stage& stage, const Projection& projection, std::size_t series,
                 const std::vector<std::size_t>& stretches) {
  const SeriesModel& one = stage.Group().series[series];
  const Span depth = stage.Depth(series);
  const auto missing = [&](std::size_t i) { return i >= one.values.size() || !std::isfinite(one.values[i]); };
  Look look{{Role::kLine, one.number, 0}, one.style.fill, one.style.stroke};
  for (const std::size_t i : stretches) {
    if (missing(i) || missing(i + 1)) continue;
    const auto at = [&](std::size_t point, double back) {
      return stage.At(projection, stage.Category(point).Middle(), stage.Value(one.values[point]), back);
    };
    look.tag.point = static_cast<int>(i) + 1;
    AddSheet(plot.canvas, projection,
             {at(i, depth.from), at(i + 1, depth.from), at(i + 1, depth.to), at(i, depth.to)}, look);
  }
  for (std::size_t i = 0; i < one.values.size(); ++i) {
    if (missing(i)) continue;
    const Point3 place =
        stage.At(projection, stage.Category(i).Middle(), stage.Value(one.values[i]), depth.Middle());
    AddPoint(plot, stage.Group(), series, i, projection.Project(place));
  }
}

}  // namespace

void DrawAreas3D(Plot& plot, const Stage& stage, const Projection& projection) {
  AreaPainter(plot, stage, projection).Paint();
}

void DrawRibbons3D(Plot& plot, const Stage& stage, const Projection& projection) {
  const Point3 eye = stage.EyeShares(projection);
  const auto stretches = StretchesBackToFront(stage, eye.x);
  for (const std::size_t series : SeriesBackToFront(stage, eye.z)) {
    PaintRibbon(plot, stage, projection, series, stretches);
  }
}

}  // namespace plotsmith::render

#include "render/threed/Bars3D.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "render/threed/Solids.h"
#include "xlsx/drawing/DrawingSchema.h"

namespace plotsmith::render {
namespace {

/// The position of a bar, in shares of the axes.
struct Standing {
  std::size_t series = 0, point = 0;
  Span across, depth, along;
  bool negative = false;
};

constexpr std::size_t kMostBars = 60'000;  // More can't be distinguished, and each has several faces.

std::vector<Standing> BarsOf(const Stage& stage) {
  const GroupModel& group = stage.Group();
  const Extents extents = StackValues(group);
  const bool drawsBlanks = stage.BlanksAreZero() && !group.IsStacked();
  std::vector<Standing> bars;
  for (std::size_t s = 0; s < group.series.size(); ++s) {
    for (std::size_t i = 0; i < extents.to[s].size() && bars.size() <= kMostBars; ++i) {
      double to = extents.to[s][i];
      if (!std::isfinite(to) && drawsBlanks) to = 0;
      if (!std::isfinite(to)) continue;
      const double from = group.IsStacked() ? extents.from[s][i] : stage.Base();
      const Span along{stage.Value(from), stage.Value(to)};
      bars.push_back({s, i, stage.Bar(i, s), stage.Depth(s), along, along.to < along.from});
    }
  }
  return bars;
}

/// Sorts bars from the farthest to the nearest. Bars are in a grid, so it is enough to compare one direction
/// after the other.
void SortBackToFront(std::vector<Standing>& bars, const Point3& eye) {
  const auto distances = [&](const Standing& bar) {
    return std::array{std::abs(bar.depth.Middle() - eye.z), std::abs(bar.across.Middle() - eye.x),
                      std::abs(bar.along.Middle() - eye.y)};
  };
  std::stable_sort(bars.begin(), bars.end(),
                   [&](const Standing& a, const Standing& b) { return distances(a) > distances(b); });
}

/// The positions of the tips of cones and pyramids on the value axis: the end of their stack, or the greatest
/// value of all bars.
class Tips {
 public:
  Tips(const Stage& stage, const std::vector<Standing>& bars) : base_(stage.Value(stage.Base())) {
    for (auto& tips : piles_) tips.assign(stage.CategoryCount(), base_);
    all_ = {base_, base_};
    for (const Standing& bar : bars) {
      Reach(piles_[bar.negative][bar.point], bar.along.to);
      Reach(all_[bar.negative], bar.along.to);
    }
  }
  /// Returns the widths of a form at the base and at the end of a bar, as shares of the width of the bar.
  std::pair<double, double> WidthsOf(const Stage& stage, const Standing& bar, bool toGreatest) const {
    const double tip = toGreatest                  ? all_[bar.negative]
                       : stage.Group().IsStacked() ? piles_[bar.negative][bar.point]
                                                   : bar.along.to;
    return {WidthAt(bar.along.from, tip), WidthAt(bar.along.to, tip)};
  }

 private:
  void Reach(double& tip, double end) const {
    if (std::abs(end - base_) > std::abs(tip - base_)) tip = end;
  }
  double WidthAt(double place, double tip) const {
    const double way = std::abs(tip - base_);
    return way > 0 ? std::clamp(std::abs(tip - place) / way, 0.0, 1.0) : 0;
  }

  double base_;
  /// The ends of the stacks of positive and of negative bars, by category.
  std::array<std::vector<double>, 2> piles_;
  std::array<double, 2> all_ = {};  ///< the farthest of these ends
};

BarSpace SpaceOf(const Stage& stage, const Projection& projection, const Standing& bar) {
  const auto [least, most] = std::minmax(bar.along.from, bar.along.to);
  BarSpace space;
  space.from = stage.At(projection, bar.across.from, least, bar.depth.from);
  space.to = stage.At(projection, bar.across.to, most, bar.depth.to);
  space.alongX = stage.IsHorizontal();
  space.backwards = bar.negative;
  return space;
}

/// Returns the rectangle around the front of a bar, for its label.
Rect FrontOf(const Projection& projection, const BarSpace& space) {
  const Point a = projection.Project(space.from);
  const Point b = projection.Project({space.to.x, space.to.y, space.from.z});
  return Union({a.x, a.y, 0, 0}, {b.x, b.y, 0, 0});
}

}  // namespace

void DrawBars3D(Plot& plot, const Stage& stage, const Projection& projection) {
  std::vector<Standing> bars = BarsOf(stage);
  if (bars.size() > kMostBars) {
    plot.canvas.Note("The chart has more bars than are drawn in 3-D; the rest is left out.");
    bars.pop_back();
  }
  SortBackToFront(bars, stage.EyeShares(projection));
  const Tips tips(stage, bars);
  const GroupModel& group = stage.Group();
  const std::string common = xlsx::schema::Val(group.node, "shape", "box");
  std::vector<BarShape> shapes;
  for (const SeriesModel& series : group.series) {
    shapes.push_back(ReadBarShape(xlsx::schema::Val(series.node, "shape", common)));
  }
  for (const Standing& bar : bars) {
    const SeriesModel& series = group.series[bar.series];
    const BarShape& shape = shapes[bar.series];
    BarSpace space = SpaceOf(stage, projection, bar);
    if (shape.form == BarForm::kCone || shape.form == BarForm::kPyramid) {
      std::tie(space.baseWidth, space.endWidth) = tips.WidthsOf(stage, bar, shape.toGreatest);
    }
    const ShapeStyle style = series.StyleOf(bar.point, series.values[bar.point]);
    AddBar(plot.canvas, projection, space, shape.form,
           {{Role::kBar, series.number, static_cast<int>(bar.point) + 1}, style.fill, style.stroke});
    plot.Keep({&group, &series, bar.point, FrontOf(projection, space), bar.negative});
  }
}

}  // namespace plotsmith::render

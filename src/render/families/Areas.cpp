#include <algorithm>
#include <cmath>

#include "render/axes/DateAxis.h"
#include "render/families/Analysis.h"
#include "render/families/Families.h"
#include "render/model/StyledShape.h"
#include "render/plot/Curves.h"

namespace plotsmith::render {
namespace {

/// The upper and the lower border of an area, both from its first point to its last one.
struct AreaBorders {
  std::vector<Point> upper, lower;
};

/// A line from a point of an area to the area below.
struct DropLine {
  Tag tag;
  double x = 0, top = 0, bottom = 0;
};

/// Draws the areas of a group in the order of the series, and then their drop lines.
class AreaPainter {
 public:
  /// Both axes must exist.
  AreaPainter(Plot& plot, const GroupModel& group)
      : plot_(plot),
        group_(group),
        categoryAxis_(*plot.CategoryAxisOf(group)),
        categories_(AxisMap::Along(categoryAxis_, plot.area)),
        values_(AxisMap::Along(*plot.ValueAxisOf(group), plot.area)),
        extents_(StackValues(group)),
        base_(plot.BaseOf(group)),
        pile_(group.PointCount()),
        bars_(plot, group) {}

  void Draw() {
    plot_.canvas.PushClip(Path().AddRect(plot_.area));
    for (std::size_t s = 0; s < group_.series.size(); ++s) {
      if (const AreaBorders borders = PlacePoints(s); !borders.upper.empty()) {
        DrawArea(group_.series[s], borders);
      }
    }
    for (const DropLine& line : dropLines_) {
      plot_.canvas.AddLine(line.tag, {line.x, line.top}, {line.x, line.bottom}, *group_.dropLines);
    }
    bars_.Draw();
    plot_.canvas.PopClip();
    DrawTrendlines(plot_, group_);
  }

 private:
  /// Stacks a series, by its index `s` from 0, and keeps its points for their labels and drop lines.
  AreaBorders PlacePoints(std::size_t s) {
    const SeriesModel& series = group_.series[s];
    AreaBorders borders;
    for (const std::size_t i : OrderAlong(categoryAxis_, series.values.size())) {
      // A stacked area can't leave out a point, because the areas below it have one there.
      if (!group_.IsStacked() && series.bridged.contains(i)) continue;
      const bool present = std::isfinite(extents_.to[s][i]);
      const double from = group_.IsStacked() ? pile_[i] : 0;
      const double to = present ? extents_.to[s][i] : from;
      if (group_.IsStacked()) pile_[i] = to;
      const double x = categories_.OfCategory(static_cast<double>(i));
      const double upper = values_.OfValue(to), lower = from == 0 ? base_ : values_.OfValue(from);
      borders.upper.push_back({x, upper});
      borders.lower.push_back({x, lower});
      if (!present || !categoryAxis_.Shows(i)) continue;
      bars_.Add(series, i, x, to);
      const double top = std::min(upper, lower), bottom = std::max(upper, lower);
      const Rect box{x, top, 0, bottom - top};
      if (plot_.Shows(box)) plot_.Keep({&group_, &series, i, box, to < from});
      if (group_.dropLines) {
        dropLines_.push_back({{Role::kDropLine, series.number, static_cast<int>(i + 1)}, x, top, bottom});
      }
    }
    return borders;
  }

  void DrawArea(const SeriesModel& series, const AreaBorders& borders) {
    std::vector<Point> outline = Thinned(borders.upper);
    const std::vector<Point> back = Thinned(borders.lower);
    outline.insert(outline.end(), back.rbegin(), back.rend());
    AddShape(plot_.canvas, {Role::kArea, series.number}, Path().AddPolygon(outline), series.style);
  }

  Plot& plot_;
  const GroupModel& group_;
  const AxisModel& categoryAxis_;
  const AxisMap categories_, values_;
  const Extents extents_;
  const double base_;
  std::vector<double> pile_;  ///< the top of the stack at each point, as a value
  std::vector<DropLine> dropLines_;
  ErrorBarPainter bars_;
};

}  // namespace

void DrawAreas(Plot& plot, const GroupModel& group) {
  if (plot.CategoryAxisOf(group) == nullptr || plot.ValueAxisOf(group) == nullptr) return;
  AreaPainter(plot, group).Draw();
}

}  // namespace plotsmith::render

#include <algorithm>
#include <cmath>

#include "render/axes/DateAxis.h"
#include "render/families/Analysis.h"
#include "render/families/Curves.h"
#include "render/families/Plot.h"
#include "render/model/StyledShape.h"

namespace plotsmith::render {
namespace {

/// From a point of an area down to what it is piled on.
struct DropLine {
  Tag tag;
  double x = 0, top = 0, bottom = 0;
};

}  // namespace

void DrawAreas(Plot& plot, const GroupModel& group) {
  const AxisModel* categoryAxis = plot.CategoryAxisOf(group);
  const AxisModel* valueAxis = plot.ValueAxisOf(group);
  if (categoryAxis == nullptr || valueAxis == nullptr) return;
  const AxisMap categories = AxisMap::Along(*categoryAxis, plot.area);
  const AxisMap values = AxisMap::Along(*valueAxis, plot.area);
  const Extents extents = StackValues(group);
  const double base = plot.BaseOf(group);
  ErrorBarPainter bars(plot, group);
  plot.canvas.PushClip(Path().AddRect(plot.area));
  std::vector<DropLine> dropLines;
  std::vector<double> pile(group.PointCount());  // a series without a value leaves the pile as it is
  for (std::size_t s = 0; s < group.series.size(); ++s) {
    const SeriesModel& series = group.series[s];
    std::vector<Point> upper, lower;
    for (const std::size_t i : OrderAlong(*categoryAxis, series.values.size())) {
      const bool present = std::isfinite(extents.to[s][i]);
      const double from = group.IsStacked() ? pile[i] : 0;
      const double to = present ? extents.to[s][i] : from;
      if (group.IsStacked()) pile[i] = to;
      const double x = categories.OfCategory(static_cast<double>(i));
      upper.push_back({x, values.OfValue(to)});
      lower.push_back({x, from == 0 ? base : values.OfValue(from)});
      if (!present) continue;
      bars.Add(series, i, x, to);
      const double top = std::min(upper.back().y, lower.back().y);
      const double bottom = std::max(upper.back().y, lower.back().y);
      plot.Keep({&group, &series, i, {x, top, 0, bottom - top}, to < from});
      if (group.dropLines) {
        dropLines.push_back({{Role::kDropLine, series.number, static_cast<int>(i + 1)}, x, top, bottom});
      }
    }
    if (upper.empty()) continue;
    std::vector<Point> outline = Thinned(upper);
    const std::vector<Point> back = Thinned(lower);
    outline.insert(outline.end(), back.rbegin(), back.rend());
    AddShape(plot.canvas, {Role::kArea, series.number}, Path().AddPolygon(outline), series.style);
  }
  for (const DropLine& line : dropLines) {
    plot.canvas.AddLine(line.tag, {line.x, line.top}, {line.x, line.bottom}, *group.dropLines);
  }
  bars.Draw();
  plot.canvas.PopClip();
  DrawTrendlines(plot, group);
}

}  // namespace plotsmith::render

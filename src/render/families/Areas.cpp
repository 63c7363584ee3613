#include <algorithm>
#include <cmath>

#include "render/axes/DateAxis.h"
#include "render/families/Plot.h"

namespace plotsmith::render {

void DrawAreas(Plot& plot, const GroupModel& group) {
  const AxisModel* categoryAxis = plot.CategoryAxisOf(group);
  const AxisModel* valueAxis = plot.ValueAxisOf(group);
  if (categoryAxis == nullptr || valueAxis == nullptr) return;
  const AxisMap categories = AxisMap::Along(*categoryAxis, plot.area);
  const AxisMap values = AxisMap::Along(*valueAxis, plot.area);
  const Extents extents = StackValues(group);
  const double base = plot.BaseOf(group);
  plot.canvas.PushClip(Path().AddRect(plot.area));
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
      const double top = std::min(upper.back().y, lower.back().y);
      plot.points.push_back(
          {&group, &series, i, {x, top, 0, std::abs(upper.back().y - lower.back().y)}, to < from});
    }
    if (upper.empty()) continue;
    upper.insert(upper.end(), lower.rbegin(), lower.rend());
    plot.canvas.Add({Role::kArea, series.number}, Path().AddPolygon(upper), series.style.fill,
                    series.style.stroke);
  }
  if (group.dropLines) {
    for (const DrawnPoint& point : plot.points) {
      if (point.group != &group) continue;
      plot.canvas.AddLine({Role::kDropLine, point.series->number, static_cast<int>(point.index + 1)},
                          {point.box.left, point.box.top}, {point.box.left, point.box.Bottom()},
                          *group.dropLines);
    }
  }
  plot.canvas.PopClip();
}

}  // namespace plotsmith::render

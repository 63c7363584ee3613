#include "render/plot/LegendKey.h"

#include <algorithm>

#include "render/plot/Markers.h"

namespace plotsmith::render {

bool HasLineKey(const ChartModel& chart, int series) {
  const GroupModel* group = chart.GroupOfSeries(series);
  if (group == nullptr || group->is3D) return false;
  return group->family == Family::kLine || group->family == Family::kScatter ||
         group->family == Family::kStock || (group->family == Family::kRadar && !group->filled);
}

void DrawKey(Canvas& canvas, const ChartModel& chart, Tag tag, const Rect& box) {
  const GroupModel* group = chart.GroupOfSeries(tag.series);
  const SeriesModel* series = chart.FindSeries(tag.series);
  if (group == nullptr || series == nullptr) return;
  const auto point = static_cast<std::size_t>(std::max(tag.point - 1, 0));
  const ShapeStyle& style = tag.point > 0 ? series->StyleOf(point) : series->style;
  if (!HasLineKey(chart, tag.series)) {
    const double side = std::min(box.width, box.height);
    const Point center = box.Center();
    Stroke stroke = style.stroke;
    stroke.width = std::min(stroke.width, 1.5);
    canvas.Add(tag, Path().AddRect({center.x - side / 2, center.y - side / 2, side, side}), style.fill,
               stroke);
    return;
  }
  const double middle = box.Center().y;
  canvas.AddLine(tag, {box.left, middle}, {box.Right(), middle}, style.stroke);
  MarkerModel marker = tag.point > 0 ? series->MarkerOf(point) : series->marker;
  marker.size = std::min(marker.size, 9.0);
  DrawMarker(canvas, tag, marker, box.Center());
}

}  // namespace plotsmith::render

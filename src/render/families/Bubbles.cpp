#include <algorithm>
#include <cmath>

#include "render/families/Analysis.h"
#include "render/families/Families.h"
#include "render/fills/BallFill.h"
#include "render/model/StyledShape.h"

namespace plotsmith::render {
namespace {

constexpr double kLargest =
    0.25;  // diameter at a scale of 100 percent, as a share of the plot area's shorter side

double SizeOf(const SeriesModel& series, std::size_t point) {
  if (series.sizes.empty()) return 1;  // Bubbles without sizes are equally large.
  return point < series.sizes.size() ? series.sizes[point] : 0;
}

/// Returns whether a bubble of a size is drawn.
bool IsShown(const GroupModel& group, double size) {
  return std::isfinite(size) && (size > 0 || (size < 0 && group.showNegativeBubbles));
}

}  // namespace

void DrawBubbles(Plot& plot, const GroupModel& group) {
  const AxisModel* xAxis = plot.CategoryAxisOf(group);
  const AxisModel* valueAxis = plot.ValueAxisOf(group);
  if (xAxis == nullptr || valueAxis == nullptr) return;
  const AxisMap across = AxisMap::Along(*xAxis, plot.area);
  const AxisMap values = AxisMap::Along(*valueAxis, plot.area);
  double most = 0;
  for (const SeriesModel& series : group.series) {
    for (std::size_t i = 0; i < series.values.size(); ++i) {
      const double size = SizeOf(series, i);
      if (IsShown(group, size)) most = std::max(most, std::abs(size));
    }
  }
  const double largest = kLargest * std::min(plot.area.width, plot.area.height) * group.bubbleScale / 100;
  ErrorBarPainter bars(plot, group);
  plot.canvas.PushClip(Path().AddRect(plot.area));
  for (const SeriesModel& series : group.series) {
    for (std::size_t i = 0; i < series.values.size(); ++i) {
      const double size = SizeOf(series, i);
      const bool present =
          i < series.x.size() && std::isfinite(series.x[i]) && std::isfinite(series.values[i]);
      if (!present || !IsShown(group, size) || !plot.TakeSymbol()) continue;
      const double share = std::abs(size) / most;
      const double diameter = largest * (group.sizeIsWidth ? share : std::sqrt(share));
      const Point center{across.OfX(series.x[i]), values.OfValue(series.values[i])};
      const Rect box{center.x - diameter / 2, center.y - diameter / 2, diameter, diameter};
      ShapeStyle style = series.StyleOf(i, size);
      if (series.bubble3D) style.fill = AsBall(style.fill);
      AddShape(plot.canvas, {Role::kBubble, series.number, static_cast<int>(i + 1)}, Path().AddEllipse(box),
               style);
      bars.Add(series, i, center.x, series.values[i]);
      if (Overlap(box, plot.area)) plot.Keep({&group, &series, i, box, size < 0});
    }
  }
  bars.Draw();
  plot.canvas.PopClip();
  DrawTrendlines(plot, group);
}

}  // namespace plotsmith::render

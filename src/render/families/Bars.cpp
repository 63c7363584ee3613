#include <algorithm>
#include <cmath>

#include "render/axes/AxisPlace.h"
#include "render/families/Plot.h"

namespace plotsmith::render {
namespace {

/// How the bars of a category share its width.
struct BarSlots {
  double width = 0;   ///< of a bar
  double step = 0;    ///< from a bar to the next series' one
  double offset = 0;  ///< from the middle of the category to the first bar's edge
};

BarSlots SlotsOf(const GroupModel& group, double categoryWidth) {
  const double count = group.IsStacked() ? 1 : static_cast<double>(group.series.size());
  const double overlap = group.IsStacked() ? 1 : group.overlap / 100;
  // the bars of all series, and the gap, which is a share of one bar's width
  const double widths = 1 + (count - 1) * (1 - overlap) + group.gapWidth / 100;
  BarSlots slots;
  slots.width = categoryWidth / widths;
  slots.step = slots.width * (1 - overlap);
  slots.offset = -(slots.width + (count - 1) * slots.step) / 2;
  return slots;
}

}  // namespace

void DrawBars(Plot& plot, const GroupModel& group) {
  const AxisModel* categoryAxis = plot.CategoryAxisOf(group);
  const AxisModel* valueAxis = plot.ValueAxisOf(group);
  if (categoryAxis == nullptr || valueAxis == nullptr) return;
  const AxisMap categories = AxisMap::Along(*categoryAxis, plot.area);
  const AxisMap values = AxisMap::Along(*valueAxis, plot.area);
  const bool horizontal = valueAxis->side == Side::kTop || valueAxis->side == Side::kBottom;
  const BarSlots slots = SlotsOf(group, categories.CategoryWidth());
  const double direction = categories.High() < categories.Low() ? -1 : 1;
  const Extents extents = StackValues(group);
  const double base = plot.BaseOf(group), crossing = CrossingValue(*valueAxis, *categoryAxis);
  plot.canvas.PushClip(Path().AddRect(plot.area));
  for (std::size_t s = 0; s < group.series.size(); ++s) {
    const SeriesModel& series = group.series[s];
    const double slot = group.IsStacked() ? 0 : static_cast<double>(s);
    for (std::size_t i = 0; i < series.values.size(); ++i) {
      const double from = extents.from[s][i], to = extents.to[s][i];
      if (!std::isfinite(to)) continue;
      const double begin = from == 0 ? base : values.OfValue(from), end = values.OfValue(to);
      const double middle = categories.OfCategory(static_cast<double>(i)) +
                            direction * (slots.offset + slot * slots.step + slots.width / 2);
      const double across = middle - slots.width / 2;
      const Rect box = horizontal ? Rect{std::min(begin, end), across, std::abs(end - begin), slots.width}
                                  : Rect{across, std::min(begin, end), slots.width, std::abs(end - begin)};
      const ShapeStyle style = series.StyleOf(i, series.values[i]);
      plot.canvas.Add({Role::kBar, series.number, static_cast<int>(i + 1)}, Path().AddRect(box), style.fill,
                      style.stroke);
      plot.points.push_back({&group, &series, i, box, to < (group.IsStacked() ? from : crossing)});
    }
  }
  plot.canvas.PopClip();
}

}  // namespace plotsmith::render

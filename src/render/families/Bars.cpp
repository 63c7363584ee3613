#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "render/axes/AxisPlace.h"
#include "render/axes/DateAxis.h"
#include "render/families/Analysis.h"
#include "render/families/Families.h"
#include "render/families/ThinBars.h"
#include "render/model/StyledShape.h"

namespace plotsmith::render {
namespace {

/// How the bars of a category share its width.
struct BarSlots {
  double width = 0;   ///< the width of a bar, in points
  double step = 0;    ///< the distance from a bar to that of the next series, in points
  double offset = 0;  ///< from the middle of the category to the edge of its first bar, in points
};

BarSlots SlotsOf(const GroupModel& group, double categoryWidth) {
  const double count = group.IsStacked() ? 1 : static_cast<double>(group.series.size());
  const double overlap = group.IsStacked() ? 1 : group.overlap / 100;
  // The width of a category as a multiple of the width of a bar. The gap is a share of the width of a bar.
  const double widths = 1 + (count - 1) * (1 - overlap) + group.gapWidth / 100;
  BarSlots slots;
  slots.width = categoryWidth / widths;
  slots.step = slots.width * (1 - overlap);
  slots.offset = -(slots.width + (count - 1) * slots.step) / 2;
  return slots;
}

/// The rectangles of the bars of a group.
class BarPlaces {
 public:
  BarPlaces(const Plot& plot, const GroupModel& group, const AxisModel& categoryAxis,
            const AxisModel& valueAxis)
      : categories_(AxisMap::Along(categoryAxis, plot.area)),
        values_(AxisMap::Along(valueAxis, plot.area)),
        horizontal_(!valueAxis.IsUpright()),
        stacked_(group.IsStacked()),
        slots_(SlotsOf(group, categories_.CategoryWidth())),
        base_(plot.BaseOf(group)) {}

  bool IsHorizontal() const { return horizontal_; }
  double Width() const { return slots_.width; }
  /// Returns the place of a value along the value axis.
  double OfValue(double value) const { return values_.OfValue(value); }
  /// Returns the bar of a point from one value to another. Series and points count from 0.
  Rect BoxOf(std::size_t series, std::size_t point, double from, double to) const {
    const double begin = from == 0 ? base_ : values_.OfValue(from), end = values_.OfValue(to);
    const double direction = categories_.High() < categories_.Low() ? -1 : 1;
    const double slot = stacked_ ? 0 : static_cast<double>(series);
    const double middle = categories_.OfCategory(static_cast<double>(point)) +
                          direction * (slots_.offset + slot * slots_.step + slots_.width / 2);
    const double across = middle - slots_.width / 2, least = std::min(begin, end);
    return horizontal_ ? Rect{least, across, std::abs(end - begin), slots_.width}
                       : Rect{across, least, slots_.width, std::abs(end - begin)};
  }

 private:
  AxisMap categories_, values_;
  bool horizontal_, stacked_;
  BarSlots slots_;
  double base_;
};

/// The bar of a point, as far as series lines need it.
struct BarEnd {
  double from = 0, to = 0;  ///< its edges along the category axis
  double end = 0;           ///< the place of its value
};

/// Draws the series lines of stacked bars. Each goes from the end of a bar to the end of the next bar of its
/// series.
void DrawSeriesLines(Plot& plot, const GroupModel& group, const AxisModel& axis, const BarPlaces& places,
                     const Extents& extents) {
  for (std::size_t s = 0; s < group.series.size(); ++s) {
    std::optional<BarEnd> previous;
    for (const std::size_t i : OrderAlong(axis, group.series[s].values.size())) {
      const double to = extents.to[s][i];
      if (!std::isfinite(to) || !axis.Shows(i)) {
        previous.reset();
        continue;
      }
      const Rect box = places.BoxOf(s, i, extents.from[s][i], to);
      const BarEnd bar = places.IsHorizontal() ? BarEnd{box.top, box.Bottom(), places.OfValue(to)}
                                               : BarEnd{box.left, box.Right(), places.OfValue(to)};
      if (previous) {
        const bool isForward = bar.from >= previous->from;
        Point begin{isForward ? previous->to : previous->from, previous->end};
        Point end{isForward ? bar.from : bar.to, bar.end};
        if (places.IsHorizontal()) begin = {begin.y, begin.x}, end = {end.y, end.x};
        plot.canvas.AddLine({Role::kSeriesLine, group.series[s].number, static_cast<int>(i + 1)}, begin, end,
                            *group.seriesLines);
      }
      previous = bar;
    }
  }
}

/// Adds notes on what isn't drawn between or behind bars that are thinner than a pixel.
void NoteThinBars(Plot& plot, const GroupModel& group) {
  const bool hasShadows = std::any_of(group.series.begin(), group.series.end(),
                                      [](const SeriesModel& series) { return series.HasShadows(); });
  if (hasShadows) plot.canvas.Note("Shadows of bars that are thinner than a pixel aren't drawn.");
  if (group.seriesLines && group.IsStacked()) {
    plot.canvas.Note("Series lines between bars that are thinner than a pixel aren't drawn.");
  }
}

}  // namespace

void DrawBars(Plot& plot, const GroupModel& group) {
  const AxisModel* categoryAxis = plot.CategoryAxisOf(group);
  const AxisModel* valueAxis = plot.ValueAxisOf(group);
  if (categoryAxis == nullptr || valueAxis == nullptr) return;
  const BarPlaces places(plot, group, *categoryAxis, *valueAxis);
  const bool thin = places.Width() <= ThinBars::kWidest;
  ErrorBarPainter bars(plot, group);
  ThinBars merged(places.IsHorizontal());
  const Extents extents = StackValues(group);
  const double crossing = CrossingValue(*valueAxis, *categoryAxis);
  plot.canvas.PushClip(Path().AddRect(plot.area));
  for (std::size_t count = 0; count < group.series.size(); ++count) {
    const std::size_t s = thin ? group.series.size() - 1 - count : count;
    const SeriesModel& series = group.series[s];
    for (std::size_t i = 0; i < series.values.size(); ++i) {
      const double from = extents.from[s][i], to = extents.to[s][i];
      if (!std::isfinite(to) || !categoryAxis->Shows(i)) continue;
      const Rect box = places.BoxOf(s, i, from, to);
      if (thin) {
        merged.Add(series, i, box);
      } else {
        const ShapeStyle style = series.StyleOf(i, series.values[i]);
        Path path;
        path.AddRect(box);
        AddShape(plot.canvas, {Role::kBar, series.number, static_cast<int>(i + 1)}, std::move(path), style);
      }
      bars.Add(series, i, places.IsHorizontal() ? box.Center().y : box.Center().x, to);
      const bool isNegative = to < (group.IsStacked() ? from : crossing);
      if (plot.Shows(box)) plot.Keep({&group, &series, i, box, isNegative});
    }
  }
  merged.Draw(plot.canvas);
  if (thin) {
    NoteThinBars(plot, group);
  } else if (group.seriesLines && group.IsStacked()) {
    DrawSeriesLines(plot, group, *categoryAxis, places, extents);
  }
  bars.Draw();
  plot.canvas.PopClip();
  DrawTrendlines(plot, group);
}

}  // namespace plotsmith::render

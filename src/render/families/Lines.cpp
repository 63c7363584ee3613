#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <set>
#include <utility>

#include "render/axes/DateAxis.h"
#include "render/families/Analysis.h"
#include "render/families/Families.h"
#include "render/model/StyledShape.h"
#include "render/plot/Curves.h"
#include "render/plot/Markers.h"

namespace plotsmith::render {
namespace {

/// A point of a line. A point that isn't present interrupts it.
struct LinePoint {
  Point place;
  bool present = false;
  std::size_t index = 0;
};

/// Returns the pieces of a line between its gaps. There is only one piece if lines span gaps.
std::vector<std::vector<Point>> Pieces(const std::vector<LinePoint>& points, bool spansGaps) {
  std::vector<std::vector<Point>> pieces(1);
  for (const LinePoint& point : points) {
    if (point.present) {
      pieces.back().push_back(point.place);
    } else if (!spansGaps && !pieces.back().empty()) {
      pieces.emplace_back();
    }
  }
  return pieces;
}

/// A style without its fill.
ShapeStyle LineStyle(ShapeStyle style) {
  style.fill = {};
  return style;
}

/// Draws a line whose points have strokes of their own. Neighbouring segments with the same stroke are one
/// path.
void DrawSegments(Plot& plot, const SeriesModel& series, const std::vector<LinePoint>& points) {
  const LinePoint* previous = nullptr;
  const ShapeStyle* style = nullptr;
  std::vector<Point> run;
  int last = 0;  // the number of the last point in the run, from 1
  const auto finish = [&] {
    if (run.size() > 1) {
      Path path;
      AddCurve(path, run, series.smooth);
      AddShape(plot.canvas, {Role::kLine, series.number, last}, std::move(path), LineStyle(*style));
    }
    run.clear();
  };
  for (const LinePoint& point : points) {
    if (!point.present) {
      if (plot.chart.blanks != "span") previous = nullptr;
      continue;
    }
    const ShapeStyle* own = &series.StyleOf(point.index);
    if (previous == nullptr || own != style) {
      finish();
      if (previous != nullptr) run.push_back(previous->place);
    }
    run.push_back(point.place);
    last = static_cast<int>(point.index + 1);
    style = own;
    previous = &point;
  }
  finish();
}

void DrawLineOf(Plot& plot, const SeriesModel& series, const std::vector<LinePoint>& points) {
  const Rect clip{plot.area.left - 1, plot.area.top - 1, plot.area.width + 2, plot.area.height + 2};
  plot.canvas.PushClip(Path().AddRect(clip));
  const bool differ = !series.points.empty() || !series.palette.empty();
  if (differ && !series.smooth) {
    DrawSegments(plot, series, points);
  } else {
    Path path;
    for (const auto& piece : Pieces(points, plot.chart.blanks == "span")) {
      if (piece.size() > 1) AddCurve(path, piece, series.smooth);
    }
    AddShape(plot.canvas, {Role::kLine, series.number}, std::move(path), LineStyle(series.style));
  }
  plot.canvas.PopClip();
}

/// Leaves out markers of dense series that would nearly cover others. The area is divided into squares with
/// edges of a third of a marker, and one marker is drawn in each.
class MarkerPlaces {
 public:
  explicit MarkerPlaces(std::size_t points) : isDense_(points > kDense) {}

  /// Returns whether a marker is drawn. The size is in points.
  bool Take(Point place, double size) {
    if (!isDense_) return true;
    const double cell = std::max(size / 3, 0.5);
    return taken_.emplace(std::llround(place.x / cell), std::llround(place.y / cell)).second;
  }

 private:
  static constexpr std::size_t kDense = 2000;
  bool isDense_;
  std::set<std::pair<long long, long long>> taken_;
};

void DrawMarkersOf(Plot& plot, const GroupModel& group, const SeriesModel& series,
                   const std::vector<LinePoint>& points) {
  MarkerPlaces places(points.size());
  for (const LinePoint& point : points) {
    if (!point.present || !plot.Shows({point.place.x, point.place.y, 0, 0})) continue;
    const MarkerModel& marker = series.MarkerOf(point.index);
    const double size = marker.symbol == "none" ? 0 : marker.size;
    if (size > 0 && places.Take(point.place, size) && plot.TakeSymbol()) {
      DrawMarker(plot.canvas, {Role::kMarker, series.number, static_cast<int>(point.index + 1)}, marker,
                 point.place);
    }
    plot.Keep(
        {&group, &series, point.index, {point.place.x - size / 2, point.place.y - size / 2, size, size}});
  }
}

/// Draws a line in each category from its greatest value to the position `end`, or to its least value.
void DrawUprights(Plot& plot, const AxisModel& axis, const AxisMap& values, const Extents& extents,
                  std::size_t count, const Stroke& stroke, std::optional<double> end = {}) {
  const AxisMap categories = AxisMap::Along(axis, plot.area);
  for (std::size_t i = 0; i < count; ++i) {
    double least = std::numeric_limits<double>::infinity(), greatest = -least;
    for (const auto& series : extents.to) {
      if (i >= series.size() || !std::isfinite(series[i])) continue;
      least = std::min(least, series[i]);
      greatest = std::max(greatest, series[i]);
    }
    if (!(greatest >= least) || !axis.Shows(i)) continue;
    const double x = categories.OfCategory(static_cast<double>(i));
    plot.canvas.AddLine({Role::kDropLine, 0, static_cast<int>(i + 1)}, {x, values.OfValue(greatest)},
                        {x, end.value_or(values.OfValue(least))}, stroke);
  }
}

}  // namespace

void DrawLines(Plot& plot, const GroupModel& group) {
  const AxisModel* categoryAxis = plot.CategoryAxisOf(group);
  const AxisModel* valueAxis = plot.ValueAxisOf(group);
  if (categoryAxis == nullptr || valueAxis == nullptr) return;
  const AxisMap categories = AxisMap::Along(*categoryAxis, plot.area);
  const AxisMap values = AxisMap::Along(*valueAxis, plot.area);
  const Extents extents = StackValues(group);
  if (group.dropLines) {
    DrawUprights(plot, *categoryAxis, values, extents, group.PointCount(), *group.dropLines,
                 plot.CrossingOf(group));
  }
  if (group.highLowLines) {
    DrawUprights(plot, *categoryAxis, values, extents, group.PointCount(), *group.highLowLines);
  }
  DrawUpDownBars(plot, group, extents);
  ErrorBarPainter bars(plot, group);
  std::vector<double> pile(group.PointCount());  // A missing value is drawn on the series below it.
  for (std::size_t s = 0; s < group.series.size(); ++s) {
    const SeriesModel& series = group.series[s];
    std::vector<LinePoint> points;
    for (const std::size_t i : OrderAlong(*categoryAxis, series.values.size())) {
      if (series.bridged.contains(i)) continue;
      double value = extents.to[s][i];
      if (!std::isfinite(value) && (plot.chart.blanks == "zero" || group.IsStacked())) value = pile[i];
      if (group.IsStacked()) pile[i] = value;
      LinePoint& point = points.emplace_back();
      point.index = i;
      point.present = valueAxis->HasPositionOf(value);
      if (point.present) point.place = {categories.OfCategory(static_cast<double>(i)), values.OfValue(value)};
      if (std::isfinite(extents.to[s][i])) bars.Add(series, i, point.place.x, value);
    }
    DrawLineOf(plot, series, points);
    bars.DrawClipped();
    DrawMarkersOf(plot, group, series, points);
  }
  DrawTrendlines(plot, group);
}

void DrawScatter(Plot& plot, const GroupModel& group) {
  const AxisModel* xAxis = plot.CategoryAxisOf(group);
  const AxisModel* valueAxis = plot.ValueAxisOf(group);
  if (xAxis == nullptr || valueAxis == nullptr) return;
  const AxisMap across = AxisMap::Along(*xAxis, plot.area);
  const AxisMap values = AxisMap::Along(*valueAxis, plot.area);
  ErrorBarPainter bars(plot, group);
  for (const SeriesModel& series : group.series) {
    std::vector<LinePoint> points;
    for (std::size_t i = 0; i < series.values.size(); ++i) {
      if (series.bridged.contains(i)) continue;
      LinePoint& point = points.emplace_back();
      point.index = i;
      point.present = i < series.x.size() && xAxis->HasPositionOf(series.x[i]) &&
                      valueAxis->HasPositionOf(series.values[i]);
      if (!point.present) continue;
      point.place = {across.OfX(series.x[i]), values.OfValue(series.values[i])};
      bars.Add(series, i, point.place.x, series.values[i]);
    }
    if (!group.markersOnly) DrawLineOf(plot, series, points);
    bars.DrawClipped();
    DrawMarkersOf(plot, group, series, points);
  }
  DrawTrendlines(plot, group);
}

}  // namespace plotsmith::render

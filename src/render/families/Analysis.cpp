#include "render/families/Analysis.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "render/model/StyledShape.h"
#include "render/plot/Curves.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {
namespace {

constexpr double kHalfCap = 3;  // points

/// A place from its coordinates along and across the axis of categories.
Point PlaceAt(bool isUpright, double along, double across) {
  return isUpright ? Point{along, across} : Point{across, along};
}

}  // namespace

void ErrorBarPainter::Add(const SeriesModel& series, std::size_t point, double along, double value) {
  if (!series.errorBars.empty()) points_.push_back({&series, point, along, value});
}

void ErrorBarPainter::DrawBar(const BarPoint& point, const ErrorBars& bars) {
  if (point.index >= bars.from.size()) return;
  const double from = bars.from[point.index], to = bars.to[point.index];
  if (!std::isfinite(from) || !std::isfinite(to) || !plot_.TakeSymbol()) return;
  const AxisModel& values = *plot_.ValueAxisOf(group_);
  const AxisMap map = AxisMap::Along(values, plot_.area);
  double low = 0, high = 0, across = point.along;
  bool upright = values.IsUpright();
  if (bars.alongX) {
    const AxisMap along = AxisMap::Along(*plot_.CategoryAxisOf(group_), plot_.area);
    const double x = point.series->x[point.index];
    low = along.OfX(x + from);
    high = along.OfX(x + to);
    across = map.OfValue(point.value);
    upright = !upright;
  } else {
    low = map.OfValue(point.value + from);
    high = map.OfValue(point.value + to);
  }
  Path path;
  path.MoveTo(PlaceAt(upright, across, low)).LineTo(PlaceAt(upright, across, high));
  for (const auto& [amount, end] : {std::pair{from, low}, std::pair{to, high}}) {
    if (!bars.caps || amount == 0) continue;
    path.MoveTo(PlaceAt(upright, across - kHalfCap, end)).LineTo(PlaceAt(upright, across + kHalfCap, end));
  }
  plot_.canvas.Add({Role::kErrorBar, point.series->number, static_cast<int>(point.index + 1)},
                   std::move(path), {}, bars.stroke);
}

void ErrorBarPainter::Draw() {
  for (const BarPoint& point : std::exchange(points_, {})) {
    for (const ErrorBars& bars : point.series->errorBars) DrawBar(point, bars);
  }
}

void ErrorBarPainter::DrawClipped() {
  if (points_.empty()) return;
  plot_.canvas.PushClip(Path().AddRect(plot_.area));
  Draw();
  plot_.canvas.PopClip();
}

namespace {

/// Draws a trendline. Returns its last place in the plot area, which its label is beside.
Point DrawLine(Plot& plot, const GroupModel& group, const SeriesModel& series, const Trendline& line,
               int number) {
  const AxisModel& values = *plot.ValueAxisOf(group);
  const AxisMap across = AxisMap::Along(*plot.CategoryAxisOf(group), plot.area);
  const AxisMap map = AxisMap::Along(values, plot.area);
  Point last = plot.area.Center();
  Path path;
  std::vector<Point> piece;
  const auto finish = [&] {
    if (piece.size() > 1) AddCurve(path, piece, false);
    piece.clear();
  };
  for (const Point& point : line.points) {
    const bool present = std::isfinite(point.x) && std::isfinite(point.y) && (!values.logBase || point.y > 0);
    if (!present) {
      finish();
    } else {
      const Point place = PlaceAt(values.IsUpright(), across.OfX(point.x - line.shift), map.OfValue(point.y));
      piece.push_back(place);
      const bool inside = place.x >= plot.area.left && place.x <= plot.area.Right() &&
                          place.y >= plot.area.top && place.y <= plot.area.Bottom();
      if (inside) last = place;
    }
  }
  finish();
  plot.canvas.PushClip(Path().AddRect(plot.area));
  AddShape(plot.canvas, {Role::kTrendline, series.number, number}, std::move(path), line.style);
  plot.canvas.PopClip();
  return last;
}

/// Draws the label above the end of its line, or as far from there as a layout by hand says.
void DrawLabel(Plot& plot, Tag tag, const Trendline& line, Point end) {
  constexpr double kGap = 4, kPadding = 2;  // points
  const TextBlock block = LayOut(line.label, plot.canvas.Measure());
  const double width = block.TurnedWidth() + 2 * kPadding, height = block.TurnedHeight() + 2 * kPadding;
  const Rect bounds = plot.canvas.Bounds();
  Rect box{end.x - width, end.y - kGap - height, width, height};
  if (line.labelLayout) {
    const ManualLayout& layout = *line.labelLayout;
    if (layout.x) box.left = (layout.xIsEdge ? 0 : box.left) + *layout.x * bounds.width;
    if (layout.y) box.top = (layout.yIsEdge ? 0 : box.top) + *layout.y * bounds.height;
  }
  box.left = std::max(std::min(box.left, bounds.Right() - width), bounds.left);
  box.top = std::max(std::min(box.top, bounds.Bottom() - height), bounds.top);
  AddTextFrame(plot.canvas, tag, box, line.labelStyle);
  DrawBlock(plot.canvas, tag, block, box.Center());
}

}  // namespace

void DrawTrendlines(Plot& plot, const GroupModel& group) {
  for (const SeriesModel& series : group.series) {
    int number = 0;
    for (const Trendline& line : series.trendlines) {
      ++number;
      if (line.points.empty()) continue;
      const Point end = DrawLine(plot, group, series, line, number);
      if (!line.label.IsEmpty()) DrawLabel(plot, {Role::kTrendlineLabel, series.number, number}, line, end);
    }
  }
}

void DrawUpDownBars(Plot& plot, const GroupModel& group, const Extents& extents) {
  if (!group.upDownBars || group.series.size() < 2) return;
  const AxisMap categories = AxisMap::Along(*plot.CategoryAxisOf(group), plot.area);
  const AxisMap values = AxisMap::Along(*plot.ValueAxisOf(group), plot.area);
  const double width = categories.CategoryWidth() / (1 + group.upDownBars->gapWidth / 100);
  const std::vector<double>&opening = extents.to.front(), &closing = extents.to.back();
  plot.canvas.PushClip(Path().AddRect(plot.area));
  for (std::size_t i = 0; i < std::min(opening.size(), closing.size()); ++i) {
    if (!std::isfinite(opening[i]) || !std::isfinite(closing[i]) || !plot.TakeSymbol()) continue;
    const double from = values.OfValue(opening[i]), to = values.OfValue(closing[i]);
    const double middle = categories.OfCategory(static_cast<double>(i));
    const Rect box{middle - width / 2, std::min(from, to), width, std::abs(to - from)};
    AddShape(plot.canvas, {Role::kUpDownBar, 0, static_cast<int>(i + 1)}, Path().AddRect(box),
             closing[i] >= opening[i] ? group.upDownBars->up : group.upDownBars->down);
  }
  plot.canvas.PopClip();
}

}  // namespace plotsmith::render

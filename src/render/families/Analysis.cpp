#include "render/families/Analysis.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "render/model/StyledShape.h"
#include "render/plot/Curves.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {
namespace {

constexpr double kHalfCap = 3;  // points

/// Returns a point from its coordinates along and across the category axis.
Point PlaceAt(bool isUpright, double along, double across) {
  return isUpright ? Point{along, across} : Point{across, along};
}

}  // namespace

ErrorBarPainter::ErrorBarPainter(Plot& plot, const GroupModel& group) : plot_(plot), group_(group) {
  const bool hasBars = std::any_of(group.series.begin(), group.series.end(),
                                   [](const SeriesModel& series) { return !series.errorBars.empty(); });
  if (hasBars && group.grouping == Grouping::kPercent) wholes_ = PointTotals(group);
}

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
    const double whole = wholes_.empty() ? 1 : wholes_[point.index];
    const double unit = whole > 0 ? 1 / whole : 0;  // If the whole is zero, there are no shares.
    low = map.OfValue(point.value + from * unit);
    high = map.OfValue(point.value + to * unit);
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

/// The path of a trendline in a plot area.
class TrendPath {
 public:
  TrendPath(const Plot& plot, const GroupModel& group, const Trendline& line)
      : area_(plot.area),
        line_(line),
        across_(*plot.CategoryAxisOf(group)),
        values_(*plot.ValueAxisOf(group)),
        acrossMap_(AxisMap::Along(across_, area_)),
        valueMap_(AxisMap::Along(values_, area_)) {}

  Path Take() {
    if (line_.curve) {
      AddPartSeen(*line_.curve);
    } else {
      for (const Point& point : line_.points) {
        if (const auto place = PlaceOf(point)) {
          Add(*place);
        } else {
          Finish();
        }
      }
    }
    Finish();
    return std::move(path_);
  }
  /// Returns the last point of the path in the plot area, or the centre of the plot area if there is none.
  Point Last() const { return last_.value_or(area_.Center()); }

 private:
  std::optional<Point> PlaceOf(Point point) const {
    const bool present =
        std::isfinite(point.x) && std::isfinite(point.y) && (!values_.logBase || point.y > 0);
    if (!present) return std::nullopt;
    return PlaceAt(values_.IsUpright(), acrossMap_.OfX(point.x - line_.shift), valueMap_.OfValue(point.y));
  }

  /// The position of a point along the value axis, relative to the plot area.
  enum class Where : std::uint8_t { kNowhere, kBefore, kNear, kBehind };

  /// Returns kNear in the plot area and just beyond its edges, and kNowhere where the curve has no point.
  Where WhereIs(const std::optional<Point>& place) const {
    constexpr double kBeyond = 20;  // points
    if (!place) return Where::kNowhere;
    const double along = values_.IsUpright() ? place->y - area_.top : place->x - area_.left;
    if (along < -kBeyond) return Where::kBefore;
    const double length = values_.IsUpright() ? area_.height : area_.width;
    return along <= length + kBeyond ? Where::kNear : Where::kBehind;
  }
  Where WhereIs(const TrendCurve& curve, double x) const { return WhereIs(PlaceOf({x, curve.At(x)})); }

  /// Returns the point at which a curve leaves the area of kNear, between the X value `near` inside it and
  /// the X value `far` outside.
  Point EndBetween(const TrendCurve& curve, double near, double far) const {
    constexpr int kHalvings = 50;
    for (int i = 0; i < kHalvings; ++i) {
      const double middle = near / 2 + far / 2;
      (WhereIs(curve, middle) == Where::kNear ? near : far) = middle;
    }
    return *PlaceOf({near, curve.At(near)});
  }

  /// Adds a steep piece of a curve that crosses the area of kNear from one side to the other.
  void AddCrossing(const TrendCurve& curve, double from, double to) {
    constexpr int kHalvings = 50;
    const Where begin = WhereIs(curve, from);
    double low = from, high = to;
    for (int i = 0; i < kHalvings; ++i) {
      const double middle = low / 2 + high / 2;
      const Where where = WhereIs(curve, middle);
      if (where == Where::kNear) {
        Add(EndBetween(curve, middle, from));
        Add(EndBetween(curve, middle, to));
        return Finish();
      }
      (where == begin ? low : high) = middle;
    }
  }

  /// Adds the part of a curve that may be visible. Points far beyond the edges would be moved, which would
  /// bend the curve.
  void AddPartSeen(const TrendCurve& curve) {
    Where last = Where::kNowhere;
    std::optional<double> before;
    for (const double x : SamplesOf(line_, across_)) {
      const auto place = PlaceOf({x, curve.At(x)});
      const Where where = WhereIs(place);
      const bool isNear = where == Where::kNear, wasNear = last == Where::kNear;
      if (isNear && !wasNear && before) Add(EndBetween(curve, x, *before));
      if (isNear) Add(*place);
      if (!isNear && wasNear) {
        Add(EndBetween(curve, *before, x));
        Finish();
      }
      const bool crosses = (last == Where::kBefore && where == Where::kBehind) ||
                           (last == Where::kBehind && where == Where::kBefore);
      if (crosses) AddCrossing(curve, *before, x);
      last = where;
      before = x;
    }
  }

  void Add(Point place) {
    piece_.push_back(place);
    const bool inside = place.x >= area_.left && place.x <= area_.Right() && place.y >= area_.top &&
                        place.y <= area_.Bottom();
    if (inside) last_ = place;
  }

  void Finish() {
    if (piece_.size() > 1) AddCurve(path_, piece_, false);
    piece_.clear();
  }

  const Rect area_;
  const Trendline& line_;
  const AxisModel &across_, &values_;
  const AxisMap acrossMap_, valueMap_;
  Path path_;
  std::vector<Point> piece_;
  std::optional<Point> last_;
};

/// Draws the label of a trendline above the end of the line, or where its manual layout places it.
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
      if (!line.curve && line.points.empty()) continue;
      TrendPath trend(plot, group, line);
      Path path = line.isVisible ? trend.Take() : Path();
      if (path.IsEmpty()) {
        plot.canvas.Note("A trendline isn't drawn because fewer than two of its points are on the axes.");
        continue;
      }
      const Tag tag{Role::kTrendline, series.number, number};
      plot.canvas.PushClip(Path().AddRect(plot.area));
      AddShape(plot.canvas, tag, std::move(path), line.style);
      plot.canvas.PopClip();
      if (line.label.IsEmpty()) continue;
      DrawLabel(plot, {Role::kTrendlineLabel, series.number, number}, line, trend.Last());
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

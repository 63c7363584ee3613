#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include "render/axes/AxisMap.h"
#include "render/axes/TickLabels.h"
#include "render/families/Families.h"
#include "render/model/StyledShape.h"
#include "render/plot/Markers.h"
#include "render/text/TextBlock.h"

namespace plotsmith::render {
namespace {

constexpr double kWebGap = 3;         // points between a spoke or the web and its label
constexpr double kWidestLabel = 0.3;  // share of the plot area
constexpr double kLeastWeb = 0.3;     // the minimum share of the radius that labels leave
constexpr std::size_t kMostSpokes = 1000;

/// Returns the direction of a spoke as a vector of length 1. The first spoke goes up, the others follow
/// clockwise.
Point DirectionOf(std::size_t spoke, std::size_t count) {
  const double angle = 2 * std::numbers::pi * static_cast<double>(spoke) / static_cast<double>(count);
  return {std::sin(angle), -std::cos(angle)};
}

/// The web of a radar chart: a spoke for each category.
class Web {
 public:
  Web(Plot& plot, const GroupModel& group, const AxisModel& category, const AxisModel& value)
      : plot_(plot),
        group_(group),
        category_(category),
        value_(value),
        count_(std::clamp<std::size_t>(group.PointCount(), 1, kMostSpokes)) {
    MeasureLabels();
    FitMajorUnit(value_, radius_, plot.chart.dates, plot.canvas.Measure());
  }

  void DrawGridlines() {
    if (!value_.majorGridlines) return;
    int number = 0;
    for (const Tick& tick : MajorTicks(value_, plot_.chart.dates)) {
      std::vector<Point> corners;
      for (std::size_t i = 0; i < count_; ++i) corners.push_back(PlaceOf(i, tick.value));
      plot_.canvas.Add({Role::kGridline, value_.number, ++number}, Path().AddPolygon(corners), {},
                       *value_.majorGridlines);
    }
  }

  void DrawAxes() {
    if (!value_.hidden) {
      for (std::size_t i = 0; i < count_; ++i) {
        plot_.canvas.AddLine({Role::kAxisLine, value_.number, static_cast<int>(i + 1)}, Middle(),
                             At(i, radius_), value_.line);
      }
    }
    if (!value_.hidden && value_.tickLabels != "none") DrawValueLabels();
    for (std::size_t i = 0; i < labels_.size(); ++i) {
      const TextBlock& block = labels_[i];
      const Point way = DirectionOf(i, count_), end = At(i, radius_);
      const Point center{end.x + way.x * (block.TurnedWidth() / 2 + kWebGap),
                         end.y + way.y * (block.TurnedHeight() / 2 + kWebGap)};
      DrawBlock(plot_.canvas, {Role::kTickLabel, category_.number, static_cast<int>(i + 1)}, block, center);
    }
  }

  void DrawSeries(const SeriesModel& series) {
    const std::vector<std::optional<Point>> places = PlacesOf(series);
    const bool spans = plot_.chart.blanks == "span";
    const bool closed =
        spans || std::all_of(places.begin(), places.end(), [](const auto& place) { return place; });
    Path path;
    bool open = false;
    for (const auto& place : places) {
      if (place) open ? path.LineTo(*place) : path.MoveTo(*place);
      open = place || (open && spans);
    }
    if (closed && !path.IsEmpty()) path.Close();
    ShapeStyle style = series.style;
    if (!group_.filled) style.fill = {};
    AddShape(plot_.canvas, {group_.filled ? Role::kArea : Role::kLine, series.number}, std::move(path),
             style);
    for (std::size_t i = 0; i < places.size(); ++i) {
      if (!places[i]) continue;
      const MarkerModel& marker = series.MarkerOf(i);
      if (!group_.filled && plot_.TakeSymbol()) {
        DrawMarker(plot_.canvas, {Role::kMarker, series.number, static_cast<int>(i + 1)}, marker, *places[i]);
      }
      const double size = group_.filled || marker.symbol == "none" ? 0 : marker.size;
      plot_.Keep({&group_, &series, i, {places[i]->x - size / 2, places[i]->y - size / 2, size, size}});
    }
  }

 private:
  Point Middle() const { return plot_.area.Center(); }
  Point At(std::size_t spoke, double distance) const {
    const Point way = DirectionOf(spoke, count_), middle = Middle();
    return {middle.x + way.x * distance, middle.y + way.y * distance};
  }
  Point PlaceOf(std::size_t spoke, double value) const {
    return At(spoke, std::clamp(AxisMap(value_, 0, radius_).OfValue(value), 0.0, radius_));
  }

  std::vector<std::optional<Point>> PlacesOf(const SeriesModel& series) const {
    std::vector<std::optional<Point>> places;
    for (std::size_t i = 0; i < std::min(series.values.size(), count_); ++i) {
      const double value = series.values[i];
      if (std::isfinite(value)) {
        places.emplace_back(PlaceOf(i, value));
      } else if (plot_.chart.blanks == "zero") {
        places.emplace_back(PlaceOf(i, 0));
      } else {
        places.emplace_back();
      }
    }
    return places;
  }

  /// Lays out the labels around the web, and sets the radius to what they leave.
  void MeasureLabels() {
    const Rect& area = plot_.area;
    const double whole = std::min(area.width, area.height) / 2;
    radius_ = whole;
    if (category_.hidden || category_.tickLabels == "none") return;
    TextStyle style = category_.text;
    style.rotation.reset();
    for (std::size_t i = 0; i < std::min(count_, category_.categories.size()); ++i) {
      TextBlock block = LayOut(category_.categories[i], style, plot_.canvas.Measure());
      Shorten(block, kWidestLabel * area.width, plot_.canvas.Measure());
      const Point way{std::abs(DirectionOf(i, count_).x), std::abs(DirectionOf(i, count_).y)};
      const auto limit = [&](double share, double half, double extent) {
        constexpr double kFlat = 0.05;  // Labels of spokes parallel to this side need no space there.
        if (share > kFlat) radius_ = std::min(radius_, (half - extent / 2) / share - extent / 2 - kWebGap);
      };
      limit(way.x, area.width / 2, block.TurnedWidth());
      limit(way.y, area.height / 2, block.TurnedHeight());
      labels_.push_back(std::move(block));
    }
    radius_ = std::max(radius_, kLeastWeb * whole);
  }

  void DrawValueLabels() {
    int number = 0;
    for (const Tick& tick : MajorTicks(value_, plot_.chart.dates)) {
      TextStyle style = value_.text;
      style.rotation.reset();
      const TextBlock block = LayOut(tick.label, style, plot_.canvas.Measure());
      const Point place = PlaceOf(0, tick.value);
      DrawBlock(plot_.canvas, {Role::kTickLabel, value_.number, ++number}, block,
                {place.x - kWebGap - block.width / 2, place.y}, TextAlign::kEnd);
    }
  }

  Plot& plot_;
  const GroupModel& group_;
  const AxisModel& category_;
  AxisModel value_;
  std::size_t count_;
  double radius_ = 0;
  std::vector<TextBlock> labels_;
};

}  // namespace

void DrawRadar(Plot& plot, const GroupModel& group) {
  const std::vector<AxisModel>& axes = plot.chart.spokes;
  if (group.category < 0 || group.value < 0 || axes.empty()) return;
  const AxisModel& category = axes[static_cast<std::size_t>(group.category)];
  const AxisModel& value = axes[static_cast<std::size_t>(group.value)];
  if (!value.IsOfValues()) return;
  Web web(plot, group, category, value);
  web.DrawGridlines();
  if (!group.filled) web.DrawAxes();
  for (const SeriesModel& series : group.series) web.DrawSeries(series);
  if (group.filled) web.DrawAxes();
}

}  // namespace plotsmith::render

#include "render/Drawing.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace plotsmith::render {
namespace {

/// The smallest rectangle around points, which are added one at a time.
class Hull {
 public:
  void Add(Point point) {
    if (empty_) {
      least_ = most_ = point;
      empty_ = false;
    }
    least_ = {std::min(least_.x, point.x), std::min(least_.y, point.y)};
    most_ = {std::max(most_.x, point.x), std::max(most_.y, point.y)};
  }
  Rect Box() const { return {least_.x, least_.y, most_.x - least_.x, most_.y - least_.y}; }

 private:
  Point least_, most_;
  bool empty_ = true;
};

/// Returns the point of a cubic curve at the parameter `t`, from 0 to 1.
Point OnCurve(Point from, const PathStep& curve, double t) {
  const double u = 1 - t;
  const auto along = [&](double a, double b, double c, double d) {
    return u * u * u * a + 3 * u * u * t * b + 3 * u * t * t * c + t * t * t * d;
  };
  return {along(from.x, curve.control1.x, curve.control2.x, curve.to.x),
          along(from.y, curve.control1.y, curve.control2.y, curve.to.y)};
}

/// Adds the points at which a curve changes its direction horizontally or vertically.
void AddTurns(Point from, const PathStep& curve, Hull& hull) {
  const auto add = [&](double a, double b, double c, double d) {
    // These are the roots of the derivative, p * t * t + q * t + r.
    const double p = -a + 3 * b - 3 * c + d, q = 2 * (a - 2 * b + c), r = b - a;
    const double root = std::sqrt(std::max(q * q - 4 * p * r, 0.0));
    for (const double t : {(-q + root) / (2 * p), (-q - root) / (2 * p), -r / q}) {
      if (t > 0 && t < 1) hull.Add(OnCurve(from, curve, t));
    }
  };
  add(from.x, curve.control1.x, curve.control2.x, curve.to.x);
  add(from.y, curve.control1.y, curve.control2.y, curve.to.y);
}

}  // namespace

Rect Inset(const Rect& rect, double horizontal, double vertical) {
  horizontal = std::min(horizontal, rect.width / 2);
  vertical = std::min(vertical, rect.height / 2);
  return {rect.left + horizontal, rect.top + vertical, rect.width - 2 * horizontal,
          rect.height - 2 * vertical};
}

bool Overlap(const Rect& a, const Rect& b, double slack) {
  const double across = std::min(a.Right(), b.Right()) - std::max(a.left, b.left);
  const double down = std::min(a.Bottom(), b.Bottom()) - std::max(a.top, b.top);
  return across > slack && down > slack;
}

Rect Union(const Rect& a, const Rect& b) {
  const double left = std::min(a.left, b.left), top = std::min(a.top, b.top);
  return {left, top, std::max(a.Right(), b.Right()) - left, std::max(a.Bottom(), b.Bottom()) - top};
}

Color FromExcel(std::int32_t color, double alpha) {
  const auto bits = static_cast<std::uint32_t>(color);
  return {static_cast<std::uint8_t>(bits), static_cast<std::uint8_t>(bits >> 8),
          static_cast<std::uint8_t>(bits >> 16), alpha};
}

std::string HexOf(const Color& color) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string hex = "#";
  for (const std::uint8_t channel : {color.red, color.green, color.blue}) {
    hex += kDigits[channel >> 4];
    hex += kDigits[channel & 15];
  }
  return hex;
}

Path& Path::MoveTo(Point to) {
  steps_.push_back({PathStep::Kind::kMove, to, {}, {}});
  return *this;
}

Path& Path::LineTo(Point to) {
  steps_.push_back({PathStep::Kind::kLine, to, {}, {}});
  return *this;
}

Path& Path::CurveTo(Point control1, Point control2, Point to) {
  steps_.push_back({PathStep::Kind::kCurve, to, control1, control2});
  return *this;
}

Path& Path::Close() {
  steps_.push_back({PathStep::Kind::kClose, {}, {}, {}});
  return *this;
}

Path& Path::AddRect(const Rect& rect) {
  if (steps_.empty()) steps_.reserve(5);
  return MoveTo({rect.left, rect.top})
      .LineTo({rect.Right(), rect.top})
      .LineTo({rect.Right(), rect.Bottom()})
      .LineTo({rect.left, rect.Bottom()})
      .Close();
}

Path& Path::AddEllipse(const Rect& bounds) {
  return MoveTo(OnEllipse(bounds, 0)).ArcTo(bounds, 0, 360).Close();
}

Path& Path::AddPolygon(const std::vector<Point>& corners) {
  if (corners.empty()) return *this;
  MoveTo(corners.front());
  for (std::size_t i = 1; i < corners.size(); ++i) LineTo(corners[i]);
  return Close();
}

Path& Path::ArcTo(const Rect& bounds, double from, double sweep) {
  constexpr double kLongest = 90;  // degrees; one cubic curve approximates such an arc well enough
  const int pieces = std::clamp(static_cast<int>(std::ceil(std::abs(sweep) / kLongest - 1e-9)), 1, 8);
  const double step = sweep / pieces;
  const double reach = 4.0 / 3 * std::tan(step * kRadian / 4);
  const double rx = bounds.width / 2, ry = bounds.height / 2;
  for (int i = 0; i < pieces; ++i) {
    const double begin = (from + i * step) * kRadian, end = (from + (i + 1) * step) * kRadian;
    const Point a = OnEllipse(bounds, from + i * step), b = OnEllipse(bounds, from + (i + 1) * step);
    CurveTo({a.x + reach * rx * std::cos(begin), a.y + reach * ry * std::sin(begin)},
            {b.x - reach * rx * std::cos(end), b.y - reach * ry * std::sin(end)}, b);
  }
  return *this;
}

Rect Path::Bounds() const {
  Hull hull;
  Point at;
  for (const PathStep& step : steps_) {
    if (step.kind == PathStep::Kind::kClose) continue;
    hull.Add(step.to);
    if (step.kind == PathStep::Kind::kCurve) AddTurns(at, step, hull);
    at = step.to;
  }
  return hull.Box();
}

Point OnEllipse(const Rect& bounds, double degrees) {
  const Point center = bounds.Center();
  return {center.x + bounds.width / 2 * std::sin(degrees * kRadian),
          center.y - bounds.height / 2 * std::cos(degrees * kRadian)};
}

void Path::Move(Point by) {
  for (PathStep& step : steps_) {
    for (Point* point : {&step.to, &step.control1, &step.control2}) {
      point->x += by.x;
      point->y += by.y;
    }
  }
}

std::string_view NameOf(Role role) {
  constexpr std::array<std::string_view, 40> kNames = {
      "Other",     "ChartArea",     "PlotArea",    "Title",     "AxisTitle",      "AxisLine",
      "TickMark",  "MinorTickMark", "TickLabel",   "Gridline",  "MinorGridline",  "DisplayUnits",
      "Legend",    "LegendKey",     "LegendEntry", "Bar",       "Area",           "Line",
      "Marker",    "Slice",         "Bubble",      "DataLabel", "LeaderLine",     "ErrorBar",
      "DropLine",  "Wall",          "Floor",       "Side",      "Shape",          "ShapeText",
      "Cell",      "CellText",      "Shadow",      "Trendline", "TrendlineLabel", "UpDownBar",
      "TableLine", "TableText",     "Surface",     "SeriesLine"};
  return kNames[static_cast<std::size_t>(role)];
}

Rect TextItem::Bounds() const {
  const double shift = align == TextAlign::kStart ? 0 : align == TextAlign::kMiddle ? width / 2 : width;
  const double cosine = std::cos(rotation * kRadian), sine = std::sin(rotation * kRadian);
  Hull hull;
  for (const double x : {-shift, width - shift}) {
    for (const double y : {-ascent, descent}) {
      hull.Add({anchor.x + x * cosine - y * sine, anchor.y + x * sine + y * cosine});
    }
  }
  return hull.Box();
}

Rect BoundsOf(const Item& item) {
  if (const auto* path = std::get_if<PathItem>(&item.content)) return path->path.Bounds();
  if (const auto* text = std::get_if<TextItem>(&item.content)) return text->Bounds();
  if (const auto* image = std::get_if<ImageItem>(&item.content)) return image->place;
  if (const auto* shadow = std::get_if<ShadowItem>(&item.content)) return shadow->path.Bounds();
  return {};
}

Item Moved(Item item, Point by) {
  if (auto* path = std::get_if<PathItem>(&item.content)) path->path.Move(by);
  if (auto* shadow = std::get_if<ShadowItem>(&item.content)) shadow->path.Move(by);
  if (auto* clip = std::get_if<PushClip>(&item.content)) clip->path.Move(by);
  if (auto* text = std::get_if<TextItem>(&item.content)) {
    text->anchor = {text->anchor.x + by.x, text->anchor.y + by.y};
  }
  if (auto* image = std::get_if<ImageItem>(&item.content)) {
    image->place.left += by.x;
    image->place.top += by.y;
  }
  return item;
}

void Append(Drawing& page, const Drawing& drawing, Point at) {
  for (const Item& item : drawing.items) page.items.push_back(Moved(item, at));
}

}  // namespace plotsmith::render

#include "render/shapes/ShapeForms.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <string_view>
#include <vector>

#include "xlsx/package/Xml.h"

namespace plotsmith::render {
namespace {

namespace xml = xlsx::xml;

constexpr double kWhole = 100000;  // the number in an adjustment that means 1

/// The frame of a shape and its adjustments.
class Frame {
 public:
  Frame(pugi::xml_node geometry, const Rect& rect) : geometry_(geometry), rect_(rect) {}

  const Rect& Bounds() const { return rect_; }
  double Left() const { return rect_.left; }
  double Top() const { return rect_.top; }
  double Right() const { return rect_.Right(); }
  double Bottom() const { return rect_.Bottom(); }
  double MiddleX() const { return rect_.Center().x; }
  double MiddleY() const { return rect_.Center().y; }
  double Shorter() const { return std::min(rect_.width, rect_.height); }

  /// Reads an adjustment ("val 25000") as a fraction from 0 to `most`.
  double Adjustment(std::string_view name, double fallback, double most) const {
    double value = fallback;
    for (const pugi::xml_node& guide : xml::Children(xml::Child(geometry_, "avLst"), "gd")) {
      const std::string formula = xml::Attribute(guide, "fmla");
      if (xml::Attribute(guide, "name") != name || !formula.starts_with("val ")) continue;
      value = xml::ParseDouble(formula.substr(4)).value_or(fallback);
    }
    return std::clamp(value / kWhole, 0.0, most);
  }
  /// Reads an adjustment that is a share of the shorter edge, in points. It is at most `longest`.
  double Cut(double fallback, double longest, std::string_view name = "adj") const {
    return Shorter() * Adjustment(name, fallback, Shorter() > 0 ? longest / Shorter() : 0);
  }

 private:
  pugi::xml_node geometry_;
  Rect rect_;
};

Path Polygon(std::vector<Point> corners) { return Path().AddPolygon(corners); }

Path Rectangle(const Frame& frame) { return Path().AddRect(frame.Bounds()); }

Path RoundedRectangle(const Frame& frame) {
  const Rect& box = frame.Bounds();
  const double radius = frame.Cut(16667, frame.Shorter() / 2), edge = 2 * radius;
  Path path;
  path.MoveTo({box.left, box.top + radius}).ArcTo({box.left, box.top, edge, edge}, 270, 90);
  path.LineTo({box.Right() - radius, box.top}).ArcTo({box.Right() - edge, box.top, edge, edge}, 0, 90);
  path.LineTo({box.Right(), box.Bottom() - radius})
      .ArcTo({box.Right() - edge, box.Bottom() - edge, edge, edge}, 90, 90);
  path.LineTo({box.left + radius, box.Bottom()}).ArcTo({box.left, box.Bottom() - edge, edge, edge}, 180, 90);
  return path.Close();
}

Path Ellipse(const Frame& frame) { return Path().AddEllipse(frame.Bounds()); }

Path Line(const Frame& frame) {
  return Path().MoveTo({frame.Left(), frame.Top()}).LineTo({frame.Right(), frame.Bottom()});
}

Path Triangle(const Frame& frame) {
  const double tip = frame.Left() + frame.Bounds().width * frame.Adjustment("adj", 50000, 1);
  return Polygon({{frame.Left(), frame.Bottom()}, {tip, frame.Top()}, {frame.Right(), frame.Bottom()}});
}

Path RightTriangle(const Frame& frame) {
  return Polygon(
      {{frame.Left(), frame.Bottom()}, {frame.Left(), frame.Top()}, {frame.Right(), frame.Bottom()}});
}

Path Diamond(const Frame& frame) {
  return Polygon({{frame.Left(), frame.MiddleY()},
                  {frame.MiddleX(), frame.Top()},
                  {frame.Right(), frame.MiddleY()},
                  {frame.MiddleX(), frame.Bottom()}});
}

Path Parallelogram(const Frame& frame) {
  const double cut = frame.Cut(25000, frame.Bounds().width);
  return Polygon({{frame.Left(), frame.Bottom()},
                  {frame.Left() + cut, frame.Top()},
                  {frame.Right(), frame.Top()},
                  {frame.Right() - cut, frame.Bottom()}});
}

Path Trapezoid(const Frame& frame) {
  const double cut = frame.Cut(25000, frame.Bounds().width / 2);
  return Polygon({{frame.Left(), frame.Bottom()},
                  {frame.Left() + cut, frame.Top()},
                  {frame.Right() - cut, frame.Top()},
                  {frame.Right(), frame.Bottom()}});
}

Path Hexagon(const Frame& frame) {
  const double cut = frame.Cut(25000, frame.Bounds().width / 2);
  return Polygon({{frame.Left(), frame.MiddleY()},
                  {frame.Left() + cut, frame.Top()},
                  {frame.Right() - cut, frame.Top()},
                  {frame.Right(), frame.MiddleY()},
                  {frame.Right() - cut, frame.Bottom()},
                  {frame.Left() + cut, frame.Bottom()}});
}

Path Octagon(const Frame& frame) {
  const double cut = frame.Cut(29289, frame.Shorter() / 2);
  const double left = frame.Left(), top = frame.Top(), right = frame.Right(), bottom = frame.Bottom();
  return Polygon({{left, top + cut},
                  {left + cut, top},
                  {right - cut, top},
                  {right, top + cut},
                  {right, bottom - cut},
                  {right - cut, bottom},
                  {left + cut, bottom},
                  {left, bottom - cut}});
}

Path Plus(const Frame& frame) {
  const double cut = frame.Cut(25000, frame.Shorter() / 2);
  const double left = frame.Left(), top = frame.Top(), right = frame.Right(), bottom = frame.Bottom();
  return Polygon({{left, top + cut},
                  {left + cut, top + cut},
                  {left + cut, top},
                  {right - cut, top},
                  {right - cut, top + cut},
                  {right, top + cut},
                  {right, bottom - cut},
                  {right - cut, bottom - cut},
                  {right - cut, bottom},
                  {left + cut, bottom},
                  {left + cut, bottom - cut},
                  {left, bottom - cut}});
}

/// Returns a star, or a polygon if `inner` is 1. It begins at the top. Its corners are alternately at the
/// full radii and at the share `inner` of them.
Path Star(Point center, double across, double down, int points, double inner) {
  std::vector<Point> corners;
  const int count = inner < 1 ? 2 * points : points;
  for (int i = 0; i < count; ++i) {
    const double angle = 2 * std::numbers::pi * i / count;
    const double share = inner < 1 && i % 2 == 1 ? inner : 1;
    corners.push_back(
        {center.x + across * share * std::sin(angle), center.y - down * share * std::cos(angle)});
  }
  return Polygon(corners);
}

/// Returns a pentagon or a star with five points. Its circle is a little larger than the frame, so that the
/// corners reach the edges of the frame.
Path FiveCorners(const Frame& frame, double inner) {
  constexpr double kAcross = 1.05146, kDown = 1.10557;
  const double down = frame.Bounds().height / 2 * kDown;
  return Star({frame.MiddleX(), frame.Top() + down}, frame.Bounds().width / 2 * kAcross, down, 5, inner);
}
Path Pentagon(const Frame& frame) { return FiveCorners(frame, 1); }
Path FivePointedStar(const Frame& frame) {
  return FiveCorners(frame, 2 * frame.Adjustment("adj", 19098, 0.499));
}
Path FourPointedStar(const Frame& frame) {
  return Star(frame.Bounds().Center(), frame.Bounds().width / 2, frame.Bounds().height / 2, 4,
              2 * frame.Adjustment("adj", 12500, 0.499));
}

Path HomePlate(const Frame& frame) {
  const double cut = frame.Cut(50000, frame.Bounds().width);
  return Polygon({{frame.Left(), frame.Top()},
                  {frame.Right() - cut, frame.Top()},
                  {frame.Right(), frame.MiddleY()},
                  {frame.Right() - cut, frame.Bottom()},
                  {frame.Left(), frame.Bottom()}});
}

Path Chevron(const Frame& frame) {
  const double cut = frame.Cut(50000, frame.Bounds().width);
  return Polygon({{frame.Left(), frame.Top()},
                  {frame.Right() - cut, frame.Top()},
                  {frame.Right(), frame.MiddleY()},
                  {frame.Right() - cut, frame.Bottom()},
                  {frame.Left(), frame.Bottom()},
                  {frame.Left() + cut, frame.MiddleY()}});
}

/// Returns the corners of an arrow. X goes from the tail to the tip, and Y is the distance from the middle
/// line.
std::vector<Point> ArrowCorners(double length, double breadth, double head, double shaft) {
  const double half = breadth / 2, thin = half * shaft, neck = length - head;
  return {{0, -thin}, {neck, -thin}, {neck, -half}, {length, 0}, {neck, half}, {neck, thin}, {0, thin}};
}
/// The direction of an arrow.
enum class Heading : std::uint8_t { kRight, kLeft, kDown, kUp };
Path Arrow(const Frame& frame, Heading heading) {
  const bool upright = heading == Heading::kDown || heading == Heading::kUp;
  const bool backwards = heading == Heading::kLeft || heading == Heading::kUp;
  const double length = upright ? frame.Bounds().height : frame.Bounds().width;
  const double breadth = upright ? frame.Bounds().width : frame.Bounds().height;
  std::vector<Point> corners =
      ArrowCorners(length, breadth, frame.Cut(50000, length, "adj2"), frame.Adjustment("adj1", 50000, 1));
  for (Point& corner : corners) {
    const double along = backwards ? length - corner.x : corner.x;
    corner = upright ? Point{frame.MiddleX() + corner.y, frame.Top() + along}
                     : Point{frame.Left() + along, frame.MiddleY() + corner.y};
  }
  return Polygon(std::move(corners));
}
Path RightArrow(const Frame& frame) { return Arrow(frame, Heading::kRight); }
Path LeftArrow(const Frame& frame) { return Arrow(frame, Heading::kLeft); }
Path DownArrow(const Frame& frame) { return Arrow(frame, Heading::kDown); }
Path UpArrow(const Frame& frame) { return Arrow(frame, Heading::kUp); }

Path Can(const Frame& frame) {
  const Rect& box = frame.Bounds();
  const double cap = frame.Cut(25000, box.height);
  const Rect top{box.left, box.top, box.width, cap}, bottom{box.left, box.Bottom() - cap, box.width, cap};
  Path path;
  path.MoveTo(OnEllipse(top, 270)).ArcTo(top, 270, 180).LineTo(OnEllipse(bottom, 90)).ArcTo(bottom, 90, 180);
  return path.Close();
}

Path Donut(const Frame& frame) {
  const Rect& box = frame.Bounds();
  const double ring = frame.Cut(25000, frame.Shorter() / 2);
  const Rect hole{box.left + ring, box.top + ring, box.width - 2 * ring, box.height - 2 * ring};
  Path path;
  path.AddEllipse(box);
  // The inner outline goes in the other direction, which makes it a hole.
  return path.MoveTo(OnEllipse(hole, 0)).ArcTo(hole, 0, -360).Close();
}

struct Form {
  std::string_view name;
  Path (*make)(const Frame&);
  bool open = false;
};
constexpr Form kForms[] = {
    {"rect", Rectangle},
    {"roundRect", RoundedRectangle},
    {"ellipse", Ellipse},
    {"line", Line, true},
    {"straightConnector1", Line, true},
    {"triangle", Triangle},
    {"rtTriangle", RightTriangle},
    {"diamond", Diamond},
    {"parallelogram", Parallelogram},
    {"trapezoid", Trapezoid},
    {"hexagon", Hexagon},
    {"octagon", Octagon},
    {"plus", Plus},
    {"pentagon", Pentagon},
    {"star4", FourPointedStar},
    {"star5", FivePointedStar},
    {"homePlate", HomePlate},
    {"chevron", Chevron},
    {"rightArrow", RightArrow},
    {"leftArrow", LeftArrow},
    {"upArrow", UpArrow},
    {"downArrow", DownArrow},
    {"can", Can},
    {"donut", Donut},
};

}  // namespace

std::optional<ShapeForm> FormOf(pugi::xml_node geometry, const Rect& frame) {
  const std::string name = xml::Attribute(geometry, "prst");
  for (const Form& form : kForms) {
    if (form.name == name) return ShapeForm{form.make(Frame(geometry, frame)), form.open};
  }
  return std::nullopt;
}

}  // namespace plotsmith::render

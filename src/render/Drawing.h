#pragma once

#include <cstdint>
#include <memory>
#include <numbers>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// Pictures of charts and sheets. A picture is a list of painted items, independent of any graphics library.
/// Lengths are in points, y grows downwards, and the origin is the top left corner of the picture.
namespace plotsmith::render {

/// One degree, in radians.
inline constexpr double kRadian = std::numbers::pi / 180;

/// A point on a picture. Lengths are in points.
struct Point {
  /// The distances from the left and the upper edge of the picture.
  double x = 0, y = 0;

  bool operator==(const Point&) const = default;
};

/// An upright rectangle on a picture, in points.
struct Rect {
  /// The left and the upper edge, and the size.
  double left = 0, top = 0, width = 0, height = 0;

  /// The X coordinate of the right edge.
  double Right() const { return left + width; }
  /// The Y coordinate of the lower edge.
  double Bottom() const { return top + height; }
  /// The middle of the rectangle.
  Point Center() const { return {left + width / 2, top + height / 2}; }
  bool operator==(const Rect&) const = default;
};

/// Returns the rectangle with its left and right sides moved inwards by `horizontal` and the others by
/// `vertical`, in points. Sides that would pass each other meet in the middle.
Rect Inset(const Rect& rect, double horizontal, double vertical);
/// Returns true if two rectangles overlap by more than `slack` points in both directions.
bool Overlap(const Rect& a, const Rect& b, double slack = 0);
/// Returns the smallest rectangle that contains both.
Rect Union(const Rect& a, const Rect& b);

/// A colour with its opacity.
struct Color {
  /// The parts of the colour, from 0 to 255.
  std::uint8_t red = 0, green = 0, blue = 0;
  /// The opacity, from 0 (transparent) to 1 (opaque).
  double alpha = 1;

  bool operator==(const Color&) const = default;
};
/// Returns the colour of Excel's number, which is red + 256 * green + 65536 * blue.
Color FromExcel(std::int32_t color, double alpha = 1);
/// Returns the colour as "#RRGGBB". The opacity isn't part of it.
std::string HexOf(const Color& color);

/// A fill of one colour.
struct SolidFill {
  /// The colour of the whole area.
  Color color;
};
/// A position on a gradient with its colour.
struct GradientStop {
  /// The position, from 0 (start) to 1 (end).
  double position = 0;
  /// The colour at the position.
  Color color;
};
/// A linear or radial gradient over the bounds of the filled path.
struct GradientFill {
  /// The stops, in the order of their positions.
  std::vector<GradientStop> stops;
  /// Whether the gradient is radial. Otherwise it is linear.
  bool radial = false;
  /// The direction of a linear gradient, in degrees clockwise from "left to right".
  double angle = 0;
  /// The start of a radial gradient, in fractions of the bounds.
  Point focus = {0.5, 0.5};
};
/// A preset pattern with tiles of 8 by 8 pixels at 96 dpi. The tiles begin at the picture's origin.
struct PatternFill {
  /// The name of the pattern, as a value of ST_PresetPatternVal.
  std::string preset;
  /// The colours of the pixels that the pattern sets, and of the others.
  Color foreground, background;
};
/// A PNG picture, stretched over the bounds of the path or repeated in tiles. Drawings don't contain this
/// fill: a Canvas replaces it by images that are clipped to the path.
struct PictureFill {
  /// The bytes of the PNG file.
  std::shared_ptr<const std::string> bytes;
  /// The size of a tile in points. It is 0 if the picture is stretched.
  double tileWidth = 0, tileHeight = 0;
};
/// The fill of a path. std::monostate means no fill.
using Fill = std::variant<std::monostate, SolidFill, GradientFill, PatternFill, PictureFill>;

/// The shape of the ends of a line.
enum class LineCap : std::uint8_t { kFlat, kRound, kSquare };
/// The shape of the corners of a line.
enum class LineJoin : std::uint8_t { kMiter, kRound, kBevel };

/// The outline of a path.
struct Stroke {
  /// The colour of the line and of its dashes.
  Color color;
  /// The width in points. It is 0 if there is no line.
  double width = 0;
  /// The lengths of dash, gap, dash and so on, in points. It is empty for a solid line.
  std::vector<double> dashes;
  /// The shape of the ends of the line, and of each dash.
  LineCap cap = LineCap::kFlat;
  /// The shape of the corners.
  LineJoin join = LineJoin::kRound;
};

/// A step of a path from the point where the previous one ended.
struct PathStep {
  /// The kind of a step: the start of an outline, a line, a cubic curve, or the end of an outline.
  enum class Kind : std::uint8_t { kMove, kLine, kCurve, kClose };
  /// What the step adds to the path.
  Kind kind = Kind::kMove;
  /// The end of the step, which kClose doesn't use.
  Point to;
  /// The control points of a cubic curve.
  Point control1, control2;
};

/// An outline of lines and cubic curves. Angles are in degrees, clockwise from twelve o'clock.
class Path {
 public:
  /// Begins a new outline at a point.
  Path& MoveTo(Point to);
  /// Adds a straight line to a point.
  Path& LineTo(Point to);
  /// Adds a cubic curve to a point.
  Path& CurveTo(Point control1, Point control2, Point to);
  /// Adds a straight line to the beginning of the outline, and ends the outline.
  Path& Close();
  /// Adds a closed rectangle.
  Path& AddRect(const Rect& rect);
  /// Adds the closed ellipse inscribed in `bounds`.
  Path& AddEllipse(const Rect& bounds);
  /// Adds a closed polygon.
  Path& AddPolygon(const std::vector<Point>& corners);
  /// Adds an arc of the ellipse inscribed in `bounds`, from the angle `from` over `sweep` degrees. The path's
  /// current point must be at `from`. A negative sweep goes counter-clockwise.
  Path& ArcTo(const Rect& bounds, double from, double sweep);

  /// The steps in the order in which they were added.
  const std::vector<PathStep>& Steps() const { return steps_; }
  /// Returns true if the path has no steps.
  bool IsEmpty() const { return steps_.empty(); }
  /// Returns the smallest rectangle that contains the lines and curves. Control points may be outside of it.
  Rect Bounds() const;
  /// Returns the path with each of its points mapped. `map` takes and returns a Point.
  template <class Map>
  Path Mapped(const Map& map) const {
    Path mapped = *this;
    for (PathStep& step : mapped.steps_) {
      if (step.kind == PathStep::Kind::kClose) continue;
      step.to = map(step.to);
      if (step.kind != PathStep::Kind::kCurve) continue;
      step.control1 = map(step.control1);
      step.control2 = map(step.control2);
    }
    return mapped;
  }
  /// Moves the whole path.
  void Move(Point by);

 private:
  std::vector<PathStep> steps_;
};
/// Returns the point of the ellipse inscribed in `bounds` at an angle in degrees, clockwise from twelve
/// o'clock. The angle is measured on a circle that is then stretched to the ellipse.
Point OnEllipse(const Rect& bounds, double degrees);

/// A font of a text.
struct Font {
  /// The name in the file. The font may not be installed.
  std::string family;
  /// The size in points.
  double size = 10;
  /// Whether the text is bold, italic and underlined. An underline has the colour of the text.
  bool bold = false, italic = false, underline = false;

  bool operator==(const Font&) const = default;
};

/// The point of a text that is at its anchor.
enum class TextAlign : std::uint8_t { kStart, kMiddle, kEnd };

/// The element of a chart or sheet that an item is part of.
enum class Role : std::uint8_t {
  kOther,
  kChartArea,
  kPlotArea,  ///< The rectangle between the axes.
  kTitle,
  kAxisTitle,
  kAxisLine,
  kTickMark,
  kMinorTickMark,
  kTickLabel,
  kGridline,
  kMinorGridline,
  kDisplayUnits,
  kLegend,
  kLegendKey,
  kLegendEntry,
  kBar,
  kArea,
  kLine,
  kMarker,
  kSlice,
  kBubble,
  kDataLabel,
  kLeaderLine,
  kErrorBar,
  kDropLine,
  kWall,
  kFloor,
  kSide,  ///< A side face of a body in 3-D. The front face has the role of the flat shape.
  kShape,
  kShapeText,
  kCell,
  kCellText,
  kShadow,  ///< The shadow of the following item, with the numbers of that item.
  kTrendline,
  kTrendlineLabel,
  kUpDownBar,
  kTableLine,  ///< A line of a data table. The texts have the numbers of their series and point.
  kTableText,
  kSurface,
  kSeriesLine  ///< A line between stacked bars, or between the two plots of a pie of pie.
};
/// Returns the name of a role without the k, such as "ChartArea".
std::string_view NameOf(Role role);

/// The element that an item shows. Numbers count from 1; 0 means none. For an axis and its parts, `series` is
/// the number of the axis in the chart part, and `point` the number of the tick. For a part of the legend,
/// they are the numbers of the entry's series and point.
struct Tag {
  /// The kind of the element.
  Role role = Role::kOther;
  /// The number of the series in plot order, from 1, or the number of the axis.
  int series = 0;
  /// The number of the point, the tick or the category, from 1.
  int point = 0;

  bool operator==(const Tag&) const = default;
};

/// A path that is filled, then stroked.
struct PathItem {
  /// The outlines, in points.
  Path path;
  /// The fill inside the outlines.
  Fill fill;
  /// The line along the outlines, which is painted over the fill.
  Stroke stroke;
};

/// One line of text in one font.
struct TextItem {
  /// The text in UTF-8.
  std::string text;
  /// The font, and its size in points.
  Font font;
  /// The colour of the text.
  Color color;
  /// The start, the middle or the end of the baseline, depending on `align`.
  Point anchor;
  /// The part of the baseline that is at the anchor.
  TextAlign align = TextAlign::kStart;
  /// The rotation about the anchor, in degrees clockwise.
  double rotation = 0;
  /// The measured size in points.
  double width = 0, ascent = 0, descent = 0;

  /// Returns the smallest upright rectangle that contains the rotated text.
  Rect Bounds() const;
};

/// Clips the following items, up to the matching PopClip, to the inside of a path.
struct PushClip {
  /// The outlines of the visible area.
  Path path;
};
/// Ends the last PushClip.
struct PopClip {};

/// The shadow of a shape: its area and its line in one colour, with soft edges.
struct ShadowItem {
  /// The outlines of the shadow, which include its offset.
  Path path;
  /// Whether the area of the shape casts a shadow.
  bool filled = true;
  /// The width of the line that casts a shadow, in points. It is 0 if there is none.
  double lineWidth = 0;
  /// The colour and the opacity of the shadow.
  Color color;
  /// The standard deviation of the soft edge, in points.
  double blur = 0;
};

/// A PNG picture, stretched to a rectangle.
struct ImageItem {
  /// The bytes of the PNG file.
  std::string bytes;
  /// The position of the whole picture, in points.
  Rect place;
};

/// A part of a picture.
struct Item {
  /// The element of the chart or sheet that the item shows.
  Tag tag;
  /// What is painted, or which clip begins or ends.
  std::variant<PathItem, TextItem, PushClip, PopClip, ImageItem, ShadowItem> content;
};

/// Returns the smallest rectangle around the contents of an item, without the width of lines. It is empty for
/// clips.
Rect BoundsOf(const Item& item);
/// Returns the item moved by a distance.
Item Moved(Item item, Point by);

/// A picture.
struct Drawing {
  /// The size in points.
  double width = 0, height = 0;
  /// The title for screen readers, which is one line.
  std::string title;
  /// The values of the chart for screen readers, as lines of text.
  std::string description;
  /// The items in the order in which they are painted.
  std::vector<Item> items;
};

/// Appends the items of a drawing to a page. The top left corner of the drawing is at the point `at`.
void Append(Drawing& page, const Drawing& drawing, Point at);

}  // namespace plotsmith::render

#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// A picture as a list of what is painted, in painting order, which knows no library. Lengths are points,
/// y goes down, and the origin is the top left corner of the picture.
namespace plotsmith::render {

struct Point {
  double x = 0, y = 0;

  bool operator==(const Point&) const = default;
};

struct Rect {
  double left = 0, top = 0, width = 0, height = 0;

  double Right() const { return left + width; }
  double Bottom() const { return top + height; }
  Point Center() const { return {left + width / 2, top + height / 2}; }
  bool operator==(const Rect&) const = default;
};

/// The rectangle with each side moved inwards; a side that would pass the opposite one stays on it.
Rect Inset(const Rect& rect, double horizontal, double vertical);
/// Whether two rectangles share more than an edge. `slack` points of overlap are not counted.
bool Overlap(const Rect& a, const Rect& b, double slack = 0);
/// The least rectangle around both.
Rect Union(const Rect& a, const Rect& b);

struct Color {
  std::uint8_t red = 0, green = 0, blue = 0;
  double alpha = 1;

  bool operator==(const Color&) const = default;
};
/// From Excel's number, red + 256 * green + 65536 * blue.
Color FromExcel(std::int32_t color, double alpha = 1);
/// "#RRGGBB".
std::string HexOf(const Color& color);

struct SolidFill {
  Color color;
};
struct GradientStop {
  double position = 0;  ///< from 0 to 1
  Color color;
};
/// A linear gradient at an angle in degrees clockwise from left to right, or a radial one from `focus`, a
/// point in fractions of the filled bounds. It spans the bounds of the path.
struct GradientFill {
  std::vector<GradientStop> stops;
  bool radial = false;
  double angle = 0;
  Point focus = {0.5, 0.5};
};
/// One of the preset patterns (ST_PresetPatternVal) of 8 by 8 pixels at 96 dpi, aligned to the picture.
struct PatternFill {
  std::string preset;
  Color foreground, background;
};
/// A PNG picture, stretched over the bounds of the path, or side by side in tiles of a size in points. A
/// canvas makes a clipped picture of it: no drawing has it.
struct PictureFill {
  std::shared_ptr<const std::string> bytes;
  double tileWidth = 0, tileHeight = 0;  ///< 0 is stretched
};
/// std::monostate is no filling.
using Fill = std::variant<std::monostate, SolidFill, GradientFill, PatternFill, PictureFill>;

enum class LineCap : std::uint8_t { kFlat, kRound, kSquare };
enum class LineJoin : std::uint8_t { kMiter, kRound, kBevel };

struct Stroke {
  Color color;
  double width = 0;            ///< 0 is no line
  std::vector<double> dashes;  ///< lengths of dash, gap, dash, ...; empty is a solid line
  LineCap cap = LineCap::kFlat;
  LineJoin join = LineJoin::kRound;
};

struct PathStep {
  enum class Kind : std::uint8_t { kMove, kLine, kCurve, kClose };
  Kind kind = Kind::kMove;
  Point to;
  Point control1, control2;  ///< of a cubic curve
};

/// An outline of lines and cubic curves. Angles are degrees, clockwise from twelve o'clock.
class Path {
 public:
  Path& MoveTo(Point to);
  Path& LineTo(Point to);
  Path& CurveTo(Point control1, Point control2, Point to);
  Path& Close();
  /// A closed rectangle, or an ellipse inscribed in it.
  Path& AddRect(const Rect& rect);
  Path& AddEllipse(const Rect& bounds);
  Path& AddPolygon(const std::vector<Point>& corners);
  /// Goes on along the ellipse inscribed in `bounds`, from the current point, which must be at `from`.
  Path& ArcTo(const Rect& bounds, double from, double sweep);

  const std::vector<PathStep>& Steps() const { return steps_; }
  bool IsEmpty() const { return steps_.empty(); }
  /// Around the line itself; the points that only control a curve may lie outside.
  Rect Bounds() const;
  void Move(Point by);

 private:
  std::vector<PathStep> steps_;
};
/// The point of the ellipse inscribed in `bounds` at an angle, which is a parameter of the ellipse.
Point OnEllipse(const Rect& bounds, double degrees);

struct Font {
  std::string family;
  double size = 10;  ///< points
  bool bold = false, italic = false, underline = false;

  bool operator==(const Font&) const = default;
};

enum class TextAlign : std::uint8_t { kStart, kMiddle, kEnd };

/// What an item belongs to on a chart.
enum class Role : std::uint8_t {
  kOther,
  kChartArea,
  kPlotArea,  ///< inside of the axes
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
  kSide,  ///< a side face of a body in 3-D, whose front has the role of the flat shape
  kShape,
  kShapeText,
  kCell,
  kCellText,
  kShadow,  ///< of the item that follows it, with the numbers of that item
  kTrendline,
  kTrendlineLabel,
  kUpDownBar,
  kTableLine,  ///< of a data table, whose texts have the numbers of their series and point
  kTableText,
  kSurface
};
std::string_view NameOf(Role role);

/// What an item shows. Series and points count from 1; 0 is none. Of an axis and its parts, `series` is the
/// number of the axis in the chart part and `point` the number of the tick. Of a legend, `series` is that of
/// the entry's series, and `point` that of its point where points have entries.
struct Tag {
  Role role = Role::kOther;
  int series = 0;
  int point = 0;

  bool operator==(const Tag&) const = default;
};

struct PathItem {
  Path path;
  Fill fill;
  Stroke stroke;
};

/// One line of text in one font.
struct TextItem {
  std::string text;  ///< UTF-8
  Font font;
  Color color;
  Point anchor;  ///< on the baseline: the start, the middle or the end of the text
  TextAlign align = TextAlign::kStart;
  double rotation = 0;                        ///< degrees clockwise about the anchor
  double width = 0, ascent = 0, descent = 0;  ///< as measured

  /// The least upright rectangle around the turned text.
  Rect Bounds() const;
};

/// Items up to the matching PopClip are only seen inside of the path.
struct PushClip {
  Path path;
};
struct PopClip {};

/// The shadow of a shape: its area and its line in one colour, with soft edges.
struct ShadowItem {
  Path path;
  bool filled = true;
  double lineWidth = 0;  ///< 0 is no line
  Color color;
  double blur = 0;  ///< standard deviation of the soft edge, in points
};

/// A PNG or JPEG picture, stretched to a rectangle.
struct ImageItem {
  std::string bytes;
  Rect place;
};

struct Item {
  Tag tag;
  std::variant<PathItem, TextItem, PushClip, PopClip, ImageItem, ShadowItem> content;
};

/// Around what the item paints; empty for clips.
Rect BoundsOf(const Item& item);
/// The item elsewhere.
Item Moved(Item item, Point by);

struct Drawing {
  double width = 0, height = 0;
  std::string title;        ///< one line, for a screen reader
  std::string description;  ///< the values, as lines of text
  std::vector<Item> items;
};

/// Appends the items of a drawing to a page, on which its corner is at a point.
void Append(Drawing& page, const Drawing& drawing, Point at);

}  // namespace plotsmith::render

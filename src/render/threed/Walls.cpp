#include "render/threed/Walls.h"

#include <vector>

#include "render/axes/AxisMap.h"
#include "render/model/StyleReader.h"
#include "render/threed/Solids.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/AutomaticColors.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {
namespace {

/// Returns a face of the box from shares of its extents.
Face PlaneOf(const Projection& projection, std::vector<Point3> shares) {
  for (Point3& share : shares) share = projection.Place(share.x, share.y, share.z);
  return shares;
}

void DrawPlane(Canvas& canvas, const Projection& projection, Role role, const std::vector<Point3>& shares,
               const ShapeStyle& style) {
  Path path;
  std::vector<Point> corners;
  for (const Point3& corner : PlaneOf(projection, shares)) corners.push_back(projection.Project(corner));
  canvas.Add({role}, path.AddPolygon(corners), style.fill, style.stroke);
}

/// Draws a line over two walls, or over a wall and the floor. These meet at the second of the three points.
void DrawGridline(Canvas& canvas, const Projection& projection, Tag tag, const std::vector<Point3>& shares,
                  const Stroke& stroke) {
  Path path;
  for (const Point3& share : shares) {
    const Point at = projection.Project(projection.Place(share.x, share.y, share.z));
    path.IsEmpty() ? path.MoveTo(at) : path.LineTo(at);
  }
  canvas.Add(tag, std::move(path), {}, stroke);
}

/// Draws the gridlines of axes on the walls and the floor.
class Gridlines {
 public:
  Gridlines(Canvas& canvas, const Stage& stage, const Projection& projection, const FarSides& far)
      : canvas_(canvas), stage_(stage), projection_(projection), far_(far) {}

  void OfValues(const AxisModel& axis, xlsx::DateSystem dates) {
    if (axis.minorGridlines) {
      for (const double value : MinorTicks(axis))
        Across(Role::kMinorGridline, axis, 0, value, *axis.minorGridlines);
    }
    if (!axis.majorGridlines) return;
    int number = 0;
    for (const Tick& tick : MajorTicks(axis, dates)) {
      Across(Role::kGridline, axis, ++number, tick.value, *axis.majorGridlines);
    }
  }
  void OfCategories(const AxisModel& axis) {
    constexpr std::size_t kMost = 1000;
    const std::size_t count = stage_.CategoryCount();
    if (!axis.majorGridlines || count > kMost) return;
    for (std::size_t i = 0; i <= count; ++i) {
      const double place = stage_.EdgeBefore(i);
      if (place < 0 || place > 1) continue;
      Draw(Role::kGridline, axis, static_cast<int>(i) + 1, !stage_.IsHorizontal(), place,
           *axis.majorGridlines);
    }
  }
  void OfSeries(const AxisModel& axis) {
    if (!axis.majorGridlines) return;
    const std::size_t count = stage_.Group().series.size();
    for (std::size_t i = 0; i <= count; ++i) {
      const double z = static_cast<double>(i) / static_cast<double>(count);
      DrawGridline(canvas_, projection_, {Role::kGridline, axis.number, static_cast<int>(i) + 1},
                   {{far_.x, 1, z}, {far_.x, 0, z}, {1 - far_.x, 0, z}}, *axis.majorGridlines);
    }
  }

 private:
  void Across(Role role, const AxisModel& axis, int number, double value, const Stroke& stroke) {
    Draw(role, axis, number, stage_.IsHorizontal(), stage_.Value(value), stroke);
  }
  /// Draws a line. At a share of X, it goes over the floor and up the back wall. At a share of Y, it goes
  /// over two walls.
  void Draw(Role role, const AxisModel& axis, int number, bool ofX, double share, const Stroke& stroke) {
    const double front = 1 - far_.z;
    const std::vector<Point3> places =
        ofX ? std::vector<Point3>{{share, 0, front}, {share, 0, far_.z}, {share, 1, far_.z}}
            : std::vector<Point3>{
                  {far_.x, share, front}, {far_.x, share, far_.z}, {1 - far_.x, share, far_.z}};
    DrawGridline(canvas_, projection_, {role, axis.number, number}, places, stroke);
  }

  Canvas& canvas_;
  const Stage& stage_;
  const Projection& projection_;
  FarSides far_;
};

}  // namespace

WallStyles ReadWalls(xlsx::ChartPart& part) {
  const auto chart = xlsx::xml::Child(part.Space(), "chart");
  const auto read = [&](const char* name, const ShapeStyle& automatic) {
    return ReadStyle(part, xlsx::xml::Child(chart, name, "spPr"), automatic);
  };
  // In a chart with a dark style, the walls have the fill of a flat plot area.
  constexpr long long kFirstDark = 33;
  Fill fill;
  if (xlsx::ChartStyleOf(part) >= kFirstDark) fill = AutomaticStyles(part).PlotArea(true).fill;
  return {read("floor", {fill, AutomaticStyles(part).AxisLine()}), read("sideWall", {fill, {}}),
          read("backWall", {fill, {}})};
}

FarSides FarSidesOf(const Projection& projection) {
  const Point3 eye = projection.Eye(), middle = projection.Place(0.5, 0.5, 0.5);
  return {eye.x >= middle.x ? 0.0 : 1.0, eye.z <= middle.z ? 1.0 : 0.0};
}

void DrawWalls(Canvas& canvas, const Stage& stage, const Projection& projection, const WallStyles& styles,
               xlsx::DateSystem dates) {
  const FarSides far = FarSidesOf(projection);
  // The base of horizontal bars is the side wall, which has the look of the floor.
  const ShapeStyle& ground = stage.IsHorizontal() ? styles.side : styles.floor;
  const ShapeStyle& side = stage.IsHorizontal() ? styles.floor : styles.side;
  DrawPlane(canvas, projection, stage.IsHorizontal() ? Role::kWall : Role::kFloor,
            {{0, 0, 0}, {1, 0, 0}, {1, 0, 1}, {0, 0, 1}}, ground);
  DrawPlane(canvas, projection, stage.IsHorizontal() ? Role::kFloor : Role::kWall,
            {{far.x, 0, 0}, {far.x, 1, 0}, {far.x, 1, 1}, {far.x, 0, 1}}, side);
  DrawPlane(canvas, projection, Role::kWall, {{0, 0, far.z}, {1, 0, far.z}, {1, 1, far.z}, {0, 1, far.z}},
            styles.back);
  Gridlines lines(canvas, stage, projection, far);
  lines.OfValues(stage.Values(), dates);
  lines.OfCategories(stage.Categories());
  if (stage.Series() != nullptr) lines.OfSeries(*stage.Series());
}

}  // namespace plotsmith::render

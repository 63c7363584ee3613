#include <map>

#include "render/fills/LitFill.h"
#include "render/model/ChartReader.h"
#include "render/threed/Bars3D.h"
#include "render/threed/Shading.h"
#include "render/threed/Solids.h"
#include "tests/render/threed/Chart3DTest.h"
#include "xlsx/chart/part/ChartPart.h"

namespace plotsmith::test {
namespace {

class Bodies3DTest : public Chart3DTest {};

/// Returns the front rectangle of a bar in a view with right-angle axes.
Rect FrontOf(const Drawing& drawing, int series, int point) {
  for (const Item& item : drawing.items) {
    if (item.tag == render::Tag{Role::kBar, series, point}) return BoundsOf(item);
  }
  return {};
}

TEST_F(Bodies3DTest, FrontsAreProportionalToTheValues) {
  for (const S direction : {"col", "bar"}) {
    for (const S grouping : {"clustered", "stacked", "standard"}) {
      const Drawing drawing = Draw({.grouping = grouping, .direction = direction});
      const auto lengthOf = [&](int series, int point) {
        const Rect front = FrontOf(drawing, series, point);
        return direction == "col" ? front.height : front.width;
      };
      const double unit = lengthOf(1, 1) / 4;
      EXPECT_GT(unit, 1);
      for (int series = 1; series <= 3; ++series) {
        for (int point = 1; point <= 4; ++point) {
          const double value = Setup().values[static_cast<std::size_t>(point - 1)] * series;
          EXPECT_NEAR(lengthOf(series, point), value * unit, 1e-6)
              << direction << grouping << series << point;
        }
      }
    }
  }
}

TEST_F(Bodies3DTest, StackedPiecesTouch) {
  for (const S grouping : {"stacked", "percentStacked"}) {
    const Drawing drawing = Draw({.grouping = grouping});
    for (int point = 1; point <= 4; ++point) {
      for (int series = 2; series <= 3; ++series) {
        const Rect lower = FrontOf(drawing, series - 1, point), upper = FrontOf(drawing, series, point);
        EXPECT_NEAR(upper.Bottom(), lower.top, 1e-6);
        EXPECT_DOUBLE_EQ(upper.left, lower.left);
      }
      if (grouping == "percentStacked") {
        EXPECT_NEAR(FrontOf(drawing, 3, point).top, FrontOf(drawing, 3, 1).top, 1e-6);
      }
    }
  }
}

TEST_F(Bodies3DTest, FrontsHaveTheColorAndSidesAreDarker) {
  const Drawing drawing = Draw({});
  const render::Color own{0x4F, 0x81, 0xBD, 1};
  for (const Item& front : ItemsOf(drawing, Role::kBar, 1)) EXPECT_EQ(FillOf(front), HexOf(own));
  const auto sides = ItemsOf(drawing, Role::kSide, 1);
  ASSERT_EQ(sides.size(), 8);  // Each bar has a side at the right and one above.
  for (const Item& side : sides) {
    const Rect front = FrontOf(drawing, 1, side.tag.point), bounds = BoundsOf(side);
    const bool atRight = std::abs(bounds.left - front.Right()) < 1e-6;
    EXPECT_NE(atRight, std::abs(bounds.Bottom() - front.top) < 1e-6);
    EXPECT_EQ(FillOf(side), HexOf(render::Lit(own, atRight ? render::kSideLight : render::kTopLight)));
  }
}

TEST_F(Bodies3DTest, BarsShareOutTheWidthAndTheDepth) {
  struct Case {
    const char *grouping, *behind;
    double depthOfBox;  ///< As a share of its width.
    double firstBar,
        lastBar;         ///< The positions at which the bars of the second of four categories begin and end.
    double front, back;  ///< The extent of the second series, as shares of the depth.
  };
  // A bar is as deep as it is wide, with half of the gap before it and half behind it.
  for (const Case& c :
       {Case{"clustered", "", 2.5 / 18, 0.25 + 0.75 / 18, 0.5 - 0.75 / 18, 0.3, 0.7},
        Case{"clustered", R"(<c:gapWidth val="0"/><c:gapDepth val="0"/>)", 1.0 / 12, 0.25, 0.5, 0, 1},
        Case{"stacked", R"(<c:gapWidth val="100"/><c:gapDepth val="300"/>)", 0.5, 0.3125, 0.4375, 0.375,
             0.625},
        Case{"standard", R"(<c:gapWidth val="100"/><c:gapDepth val="100"/>)", 0.75, 0.3125, 0.4375, 5.0 / 12,
             7.0 / 12}}) {
    OpenChart(Part({.grouping = c.grouping, .behind = c.behind}));
    const render::ChartModel chart = render::ReadChart(*Book().Chart("/xl/charts/chart1.xml"), notes_);
    const render::Stage stage(chart, chart.groups[0]);
    EXPECT_NEAR(stage.Shape({}).depth, c.depthOfBox, 1e-9) << c.grouping;
    EXPECT_NEAR(stage.Bar(1, 0).from, c.firstBar, 1e-9) << c.grouping;
    EXPECT_NEAR(stage.Bar(1, 2).to, c.lastBar, 1e-9) << c.grouping;
    EXPECT_NEAR(stage.Depth(1).from, c.front, 1e-9) << c.grouping;
    EXPECT_NEAR(stage.Depth(1).to, c.back, 1e-9) << c.grouping;
  }
}

/// A point on the surface of a bar: its position in the picture, and its distance from the eye.
struct Sighting {
  std::size_t item = 0;
  double distance = 0;
};

double DistanceOf(const render::Point3& place, const render::Point3& eye) {
  return std::hypot(place.x - eye.x, place.y - eye.y, place.z - eye.z);
}

/// Returns the number of points that are covered by a bar that is painted later although it is farther away.
int HiddenPlaces(const render::Stage& stage, const render::Projection& projection,
                 const std::vector<Item>& items) {
  std::map<std::pair<int, int>, std::size_t> order;
  for (std::size_t i = 0; i < items.size(); ++i) order[{items[i].tag.series, items[i].tag.point}] = i;
  const render::Point3 eye = projection.Eye();
  std::map<std::pair<long, long>, std::vector<Sighting>> seen;
  const auto& group = stage.Group();
  for (std::size_t s = 0; s < group.series.size(); ++s) {
    for (std::size_t i = 0; i < stage.CategoryCount(); ++i) {
      const auto across = stage.Bar(i, s);
      const auto depth = stage.Depth(s);
      const auto at = [&](double x, double y, double z) { return stage.At(projection, x, y, z); };
      const double top = stage.Value(group.series[s].values[i]);
      for (const auto& face :
           render::BlockFaces(at(across.from, 0, depth.from), at(across.to, top, depth.to))) {
        if (!projection.Shows(face)) continue;
        constexpr int kSteps = 24;
        for (int u = 1; u < kSteps; ++u) {
          for (int v = 1; v < kSteps; ++v) {
            const auto mix = [&](double a, double b, double d) {
              return a + (b - a) * u / kSteps + (d - a) * v / kSteps;
            };
            const render::Point3 place{mix(face[0].x, face[1].x, face[3].x),
                                       mix(face[0].y, face[1].y, face[3].y),
                                       mix(face[0].z, face[1].z, face[3].z)};
            const Point flat = projection.Project(place);
            seen[{std::lround(flat.x * 2), std::lround(flat.y * 2)}].push_back(
                {order.at({static_cast<int>(s) + 1, static_cast<int>(i) + 1}), DistanceOf(place, eye)});
          }
        }
      }
    }
  }
  // Points within half a point of each other can differ by that much in depth on a slanted face.
  const double slack = 0.05 * std::hypot(projection.Extent().width, projection.Extent().height);
  int hidden = 0;
  for (const auto& [pixel, sightings] : seen) {
    for (const Sighting& a : sightings) {
      for (const Sighting& b : sightings) hidden += a.distance + slack < b.distance && a.item < b.item;
    }
  }
  return hidden;
}

TEST_F(Bodies3DTest, NoBarIsPaintedOverANearerOne) {
  for (const S grouping : {"standard", "clustered"}) {
    OpenChart(Part({.grouping = grouping, .values = {4, 8, 3, 6}}));
    const render::ChartModel chart = render::ReadChart(*Book().Chart("/xl/charts/chart1.xml"), notes_);
    const render::Stage stage(chart, chart.groups[0]);
    for (const double rotation : {0, 20, 45, 70, 90, 135, 180, 200, 250, 290, 340}) {
      for (const double elevation : {-40, 0, 15, 60, 90}) {
        for (const double field : {0, 15, 100}) {
          render::View view;
          view.rotation = rotation;
          view.elevation = elevation;
          view.rightAngles = false;
          view.fieldOfView = field;
          const render::Projection projection(view, stage.Shape(view), {0, 0, 300, 200});
          Drawing drawing;
          render::Canvas canvas(drawing, SharedFonts(), notes_);
          render::Plot plot{chart, {0, 0, 300, 200}, canvas};
          DrawBars3D(plot, stage, projection);
          EXPECT_EQ(HiddenPlaces(stage, projection, drawing.items), 0)
              << grouping << ' ' << rotation << ' ' << elevation << ' ' << field;
        }
      }
    }
  }
}

TEST_F(Bodies3DTest, StackedAreasShareTheirBorders) {
  const Drawing drawing = Draw({.group = "area3DChart", .grouping = "stacked"});
  const auto fronts = ItemsOf(drawing, Role::kArea);
  ASSERT_EQ(fronts.size(), 3);
  for (std::size_t s = 0; s + 1 < fronts.size(); ++s) {
    const auto& lower = std::get<PathItem>(fronts[s].content).path.Steps();
    const auto& upper = std::get<PathItem>(fronts[s + 1].content).path.Steps();
    ASSERT_EQ(lower.size(),
              9);  // The path goes along the upper border, back along the lower one, and is closed.
    for (std::size_t i = 0; i < 4; ++i) {
      EXPECT_NEAR(lower[i].to.x, upper[7 - i].to.x, 1e-6);
      EXPECT_NEAR(lower[i].to.y, upper[7 - i].to.y, 1e-6);
    }
  }
}

TEST_F(Bodies3DTest, AreasAreBehindEachOtherWithTheFirstInFront) {
  const Drawing drawing = Draw({.view = R"(<c:rotX val="15"/><c:rotY val="20"/><c:perspective val="30"/>)",
                                .group = "area3DChart",
                                .grouping = "standard"});
  std::vector<int> order;
  for (const Item& front : ItemsOf(drawing, Role::kArea)) order.push_back(front.tag.series);
  EXPECT_EQ(order, (std::vector{3, 2, 1}));
  // The labels of the series are along the depth, from front to back.
  EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 3), (Texts{"Series 0", "Series 1", "Series 2"}));
}

/// Returns true if a point is inside a polygon: a ray from it crosses the outline an odd number of times.
bool IsInside(Point point, const std::vector<PathStep>& outline) {
  bool inside = false;
  for (std::size_t i = 0; i + 1 < outline.size(); ++i) {
    const Point a = outline[i].to, b = outline[(i + 1) % (outline.size() - 1)].to;
    const bool crosses = (a.y > point.y) != (b.y > point.y);
    if (crosses && point.x < a.x + (point.y - a.y) / (b.y - a.y) * (b.x - a.x)) inside = !inside;
  }
  return inside;
}

TEST_F(Bodies3DTest, AxisLabelsStayOnTheChartApartAndOffTheFloor) {
  for (const S view : {R"(<c:rotX val="15"/><c:rotY val="20"/><c:rAngAx val="1"/>)",
                       R"(<c:rotX val="30"/><c:rotY val="45"/><c:perspective val="60"/>)",
                       R"(<c:rotX val="80"/><c:rotY val="200"/><c:perspective val="200"/>)",
                       R"(<c:rotX val="-20"/><c:rotY val="320"/><c:perspective val="30"/>)",
                       R"(<c:rotX val="30"/><c:rotY val="120"/><c:perspective val="60"/>)",
                       R"(<c:hPercent val="30"/><c:rotY val="70"/><c:depthPercent val="300"/>)"}) {
    for (const S grouping : {"standard", "clustered"}) {
      const Drawing drawing = Draw({.view = view, .grouping = grouping});
      const auto labels = ItemsOf(drawing, Role::kTickLabel);
      EXPECT_GE(labels.size(), 4);
      const auto floorItems = ItemsOf(drawing, Role::kFloor);
      const auto& floor = std::get<PathItem>(floorItems.at(0).content).path;
      for (const Item& label : labels) {
        EXPECT_FALSE(IsInside(BoundsOf(label).Center(), floor.Steps())) << view << grouping;
      }
      for (std::size_t i = 0; i < labels.size(); ++i) {
        const Rect box = BoundsOf(labels[i]);
        EXPECT_TRUE(box.left >= 0 && box.top >= 0 && box.Right() <= 384 && box.Bottom() <= 270) << view;
        for (std::size_t j = 0; j < i; ++j) {
          if (labels[i].tag.series != labels[j].tag.series) continue;
          // Letters are lower than their line.
          EXPECT_FALSE(Overlap(box, BoundsOf(labels[j]), 0.2 * box.height + 0.1)) << view << grouping;
        }
      }
    }
  }
}

TEST_F(Bodies3DTest, BarsHaveTheShapesInTheFile) {
  struct Case {
    const char* shape;
    bool narrows;  ///< Whether a bar is narrower at its end than at its base.
    std::size_t faces;
  };
  for (const Case& c : {Case{"box", false, 3}, Case{"cylinder", false, 2}, Case{"pyramid", true, 3},
                        Case{"cone", true, 2}, Case{"coneToMax", true, 2}}) {
    const Drawing drawing =
        Draw({.grouping = "stacked", .behind = S("<c:shape val=\"") + c.shape + "\"/>", .values = {4, 8}});
    const auto sides = ItemsOf(drawing, Role::kSide, 2);
    const auto fronts = ItemsOf(drawing, Role::kBar, 2);
    ASSERT_EQ(fronts.size(), 2) << c.shape;
    EXPECT_EQ((sides.size() + fronts.size()) / 2, c.faces) << c.shape;
    // Both bars of a category have the same width where they meet.
    const Rect lower = FrontOf(drawing, 1, 1), upper = FrontOf(drawing, 2, 1);
    EXPECT_TRUE(c.narrows ? upper.width < lower.width * 0.99 : upper.width == lower.width) << c.shape;
  }
}

TEST_F(Bodies3DTest, NotesAndOddFilesLeaveTheChartDrawn) {
  for (const S view : {"", R"(<c:rotX val="1e308"/><c:rotY val="-5"/>)", R"(<c:hPercent val="0"/>)",
                       R"(<c:depthPercent val="NaN"/><c:perspective val="999"/>)"}) {
    for (const S behind : {R"(<c:gapWidth val="1e9"/><c:gapDepth val="-3"/>)", ""}) {
      const Drawing drawing = Draw({.view = view, .behind = behind});
      EXPECT_EQ(ItemsOf(drawing, Role::kBar).size(), 12) << view;
      for (const Item& item : drawing.items) {
        const Rect box = BoundsOf(item);
        EXPECT_TRUE(std::isfinite(box.left + box.top + box.width + box.height));
      }
    }
  }
}

}  // namespace
}  // namespace plotsmith::test

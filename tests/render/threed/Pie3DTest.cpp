#include <numbers>

#include "tests/render/threed/Chart3DTest.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::test {
namespace {

class Pie3DTest : public Chart3DTest {};

TEST_F(Pie3DTest, TheDiscIsAsFlatAsTheElevationSays) {
  for (const double elevation : {10, 30, 45, 80}) {
    const Drawing drawing =
        Draw({.view = "<c:rotX val=\"" + xlsx::xml::Number(elevation) + "\"/><c:rotY val=\"0\"/>",
              .group = "pie3DChart"});
    ASSERT_EQ(ItemsOf(drawing, Role::kSlice).size(), 4);
    const Rect top = BoxOf(drawing, Role::kSlice), sides = BoxOf(drawing, Role::kSide);
    EXPECT_NEAR(top.height / top.width, std::sin(elevation * std::numbers::pi / 180), 1e-3) << elevation;
    // The rim is below the upper side. It is thinner in a view from above.
    EXPECT_NEAR((sides.Bottom() - top.Bottom()) / top.width,
                0.12 * std::cos(elevation * std::numbers::pi / 180), 1e-3);
    EXPECT_TRUE(top.left >= 0 && top.top >= 0 && top.Right() <= 384 && sides.Bottom() <= 270);
  }
}

TEST_F(Pie3DTest, SlicesMeetOnTheirEdgesAndBeginWhereTheViewIsTurnedTo) {
  for (const double rotation : {0, 90, 275}) {
    const Drawing drawing =
        Draw({.view = "<c:rotX val=\"30\"/><c:rotY val=\"" + xlsx::xml::Number(rotation) + "\"/>",
              .group = "pie3DChart",
              .values = {1, 1, 2}});
    const auto slices = ItemsOf(drawing, Role::kSlice);
    ASSERT_EQ(slices.size(), 3);
    const Rect disc = BoxOf(drawing, Role::kSlice);
    const auto stepsOf = [&](std::size_t i) {
      return std::get<PathItem>(slices[i % 3].content).path.Steps();
    };
    for (std::size_t i = 0; i < 3; ++i) {
      // The path of a slice goes from the middle to the edge, along it, and back.
      const auto end = stepsOf(i)[stepsOf(i).size() - 2].to, next = stepsOf(i + 1)[1].to;
      EXPECT_NEAR(end.x, next.x, 1e-6);
      EXPECT_NEAR(end.y, next.y, 1e-6);
    }
    const Point begin = stepsOf(0)[1].to;
    EXPECT_NEAR(begin.x, disc.Center().x + disc.width / 2 * std::sin(rotation * std::numbers::pi / 180),
                0.02);
  }
}

TEST_F(Pie3DTest, NothingIsPaintedOverTheUpperSides) {
  for (const S exploded : {"", "<c:explosion val=\"40\"/>"}) {
    const Drawing drawing = Draw({.view = "<c:rotX val=\"30\"/>", .group = "pie3DChart", .inside = exploded});
    int slices = 0;
    for (const Item& item : drawing.items) {
      if (item.tag.role == Role::kSlice) ++slices;
      if (item.tag.role == Role::kSide) {
        EXPECT_EQ(slices, 0);
      }
    }
    EXPECT_EQ(slices, 4);
    // The cuts of an exploded pie are visible.
    const std::size_t walls = ItemsOf(drawing, Role::kSide).size();
    EXPECT_TRUE(exploded.empty() ? walls <= 4 : walls > 4) << walls;
  }
}

TEST_F(Pie3DTest, SlicesGoOutAlongTheDisc) {
  const Drawing drawing = Draw({.view = "<c:rotX val=\"30\"/><c:rotY val=\"0\"/>",
                                .group = "pie3DChart",
                                .inside = "<c:explosion val=\"50\"/>",
                                .values = {1, 1, 1, 1}});
  const auto slices = ItemsOf(drawing, Role::kSlice);
  ASSERT_EQ(slices.size(), 4);
  const auto tipOf = [&](std::size_t i) { return std::get<PathItem>(slices[i].content).path.Steps()[0].to; };
  const Rect slice = BoundsOf(slices[0]);  // A quarter is as wide as the radius.
  // Each slice is moved by half of the radius, at 45 degrees on the disc.
  EXPECT_NEAR((tipOf(0).x - tipOf(3).x) / 2, slice.width * 0.5 * std::numbers::sqrt2 / 2, 0.02);
  EXPECT_NEAR((tipOf(1).y - tipOf(0).y) / 2, slice.height * 0.5 * std::numbers::sqrt2 / 2, 0.02);
}

TEST_F(Pie3DTest, LabelsOutsideStayClearOfTheDiscAndItsRim) {
  const S labels =
      "<c:dLbls><c:dLblPos val=\"outEnd\"/><c:showVal val=\"1\"/><c:showCatName val=\"1\"/></c:dLbls>";
  for (const S rotation : {"0", "45", "100"}) {
    const Drawing drawing = Draw({.view = "<c:rotX val=\"30\"/><c:rotY val=\"" + rotation + "\"/>",
                                  .group = "pie3DChart",
                                  .inside = labels});
    const Rect top = BoxOf(drawing, Role::kSlice);
    const double drop = BoxOf(drawing, Role::kSide).Bottom() - top.Bottom();
    const auto boxes = BoxesOf(drawing, Role::kDataLabel);
    EXPECT_EQ(boxes.size(), 4);
    for (const Rect& box : boxes) {
      EXPECT_TRUE(box.left >= 0 && box.top >= 0 && box.Right() <= 384 && box.Bottom() <= 270);
      for (const double x : {box.left, box.Center().x, box.Right()}) {
        for (const double y : {box.top, box.Bottom()}) {
          // The point is in the upper ellipse, the lower one, or between them.
          const double across = (x - top.Center().x) / (top.width / 2);
          const double reach = std::sqrt(std::max(1 - across * across, 0.0)) * top.height / 2;
          EXPECT_FALSE(std::abs(across) < 1 && y > top.Center().y - reach + 0.5 &&
                       y < top.Center().y + drop + reach - 0.5)
              << rotation << " at " << x << ", " << y;
        }
      }
    }
  }
}

}  // namespace
}  // namespace plotsmith::test

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "tests/render/threed/Chart3DTest.h"

namespace plotsmith::test {
namespace {

using render::Drawing;
using render::Item;
using render::Rect;
using render::Role;

class Pie3DTest : public Chart3DTest {};

Rect BoundsOfAll(const std::vector<const Item*>& items) {
  Rect bounds = BoundsOf(*items.at(0));
  for (const Item* item : items) bounds = Union(bounds, BoundsOf(*item));
  return bounds;
}

TEST_F(Pie3DTest, NothingIsPaintedOverTheUpperSides) {
  for (const std::string exploded : {"", "<c:explosion val=\"40\"/>"}) {
    OpenChart(Part({.group = "pie3DChart"}));
    std::string part = Part({.view = "<c:rotX val=\"30\"/>", .group = "pie3DChart"});
    part.insert(part.find("<c:cat>"), exploded);
    OpenChart(part);
    const Drawing drawing = DrawChart(*Book().Chart("/xl/charts/chart1.xml"), 384, 270, fonts_, notes_);
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

TEST_F(Pie3DTest, LabelsOutsideStayClearOfTheDiscAndItsRim) {
  for (const std::string rotation : {"0", "45", "100"}) {
    std::string part =
        Part({.view = "<c:rotX val=\"30\"/><c:rotY val=\"" + rotation + "\"/>", .group = "pie3DChart"});
    part.insert(
        part.find("<c:cat>"),
        "<c:dLbls><c:dLblPos val=\"outEnd\"/><c:showVal val=\"1\"/><c:showCatName val=\"1\"/></c:dLbls>");
    OpenChart(part);
    const Drawing drawing = DrawChart(*Book().Chart("/xl/charts/chart1.xml"), 384, 270, fonts_, notes_);
    const Rect top = BoundsOfAll(ItemsOf(drawing, Role::kSlice));
    const double drop = BoundsOfAll(ItemsOf(drawing, Role::kSide)).Bottom() - top.Bottom();
    const auto labels = ItemsOf(drawing, Role::kDataLabel);
    EXPECT_EQ(labels.size(), 4);
    for (const Item* label : labels) {
      const Rect box = BoundsOf(*label);
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

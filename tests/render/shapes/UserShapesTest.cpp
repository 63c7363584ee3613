#include <cmath>
#include <gtest/gtest.h>

#include "render/cairo/CairoPainter.h"
#include "render/chart/ChartDrawing.h"
#include "render/shapes/Placement.h"
#include "render/svg/SvgWriter.h"
#include "tests/render/threed/Chart3DTest.h"
#include "xlsx/chart/part/ChartPart.h"

namespace plotsmith::test {
namespace {

using render::Drawing;
using render::Item;
using render::Rect;
using render::Role;

constexpr double kChartWidth = 400, kChartHeight = 200;  // The size of the chart in points.

std::string Anchor(const std::string& object, const std::string& x2 = "0.75", const std::string& y2 = "0.5") {
  return "<cdr:relSizeAnchor><cdr:from><cdr:x>0.25</cdr:x><cdr:y>0.25</cdr:y></cdr:from><cdr:to><cdr:x>" +
         x2 + "</cdr:x><cdr:y>" + y2 + "</cdr:y></cdr:to>" + object + "</cdr:relSizeAnchor>";
}

/// Returns a shape with its own position in points, which is used inside a group.
std::string ShapeXml(const std::string& form, const std::string& inside = "", const Rect& place = {},
                     const std::string& turn = "", const std::string& text = "") {
  const auto emu = [](double points) { return std::to_string(std::lround(points * 12700)); };
  return "<cdr:sp><cdr:nvSpPr><cdr:cNvPr id=\"2\" "
         "name=\"Sign\"/><cdr:cNvSpPr/></cdr:nvSpPr><cdr:spPr><a:xfrm" +
         turn + "><a:off x=\"" + emu(place.left) + "\" y=\"" + emu(place.top) + "\"/><a:ext cx=\"" +
         emu(place.width) + "\" cy=\"" + emu(place.height) + "\"/></a:xfrm><a:prstGeom prst=\"" + form +
         "\"><a:avLst/></a:prstGeom>" + inside + "</cdr:spPr>" + text + "</cdr:sp>";
}

std::string Solid(const std::string& color) {
  return "<a:solidFill><a:srgbClr val=\"" + color + "\"/></a:solidFill>";
}

class UserShapesTest : public Chart3DTest {
 protected:
  Drawing DrawWith(const std::string& anchors) {
    OpenChart(ChartPartXml("<c:plotArea/>",
                           "<c:userShapes r:id=\"rId7\" "
                           "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/"
                           "relationships\"/>"),
              "<c:userShapes xmlns:c=\"http://schemas.openxmlformats.org/drawingml/2006/chart\" "
              "xmlns:cdr=\"http://schemas.openxmlformats.org/drawingml/2006/chartDrawing\" "
              "xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\">" +
                  anchors + "</c:userShapes>");
    notes_.clear();
    return DrawChart(*Book().Chart("/xl/charts/chart1.xml"), kChartWidth, kChartHeight, fonts_, notes_);
  }
  /// Returns the bounds of the first item of a role.
  static Rect BoundsOfFirst(const Drawing& drawing, Role role) {
    const auto items = ItemsOf(drawing, role);
    return items.empty() ? Rect{-1, -1, -1, -1} : BoundsOf(*items[0]);
  }
};

void ExpectNear(const Rect& actual, const Rect& expected, const std::string& what) {
  EXPECT_NEAR(actual.left, expected.left, 0.01) << what;
  EXPECT_NEAR(actual.top, expected.top, 0.01) << what;
  EXPECT_NEAR(actual.width, expected.width, 0.01) << what;
  EXPECT_NEAR(actual.height, expected.height, 0.01) << what;
}

TEST_F(UserShapesTest, GroupsPlaceStretchAndTurnTheirMembers) {
  const auto group = [](const std::string& turn, const std::string& members) {
    return Anchor(
        "<cdr:grpSp><cdr:nvGrpSpPr><cdr:cNvPr id=\"3\" name=\"G\"/><cdr:cNvGrpSpPr/></cdr:nvGrpSpPr>"
        "<cdr:grpSpPr><a:xfrm" +
        turn +
        "><a:off x=\"0\" y=\"0\"/><a:ext cx=\"1\" cy=\"1\"/><a:chOff x=\"127000\" y=\"0\"/>"
        "<a:chExt cx=\"1270000\" cy=\"1270000\"/></a:xfrm>" +
        Solid("00FF00") + "</cdr:grpSpPr>" + members + "</cdr:grpSp>");
  };
  // The members are in a square of 100 points at (10, 0). The group is 200 by 50 points at (100, 50).
  struct Case {
    const char *turn, *memberTurn;
    Rect expected;
  };
  for (const Case& c :
       {Case{"", "", {120, 55, 40, 10}}, Case{" flipH=\"1\"", "", {240, 55, 40, 10}},
        Case{" flipV=\"1\"", "", {120, 85, 40, 10}}, Case{" rot=\"10800000\"", "", {240, 85, 40, 10}},
        // about the middle at (200, 75)
        Case{" rot=\"5400000\"", "", {210, -5, 10, 40}}, Case{"", " rot=\"5400000\"", {135, 40, 10, 40}},
        Case{" rot=\"5400000\"", " rot=\"-5400000\"", {195, 10, 40, 10}}}) {
    const Drawing drawing =
        DrawWith(group(c.turn, ShapeXml("rect", "<a:grpFill/>", {20, 10, 20, 20}, c.memberTurn)));
    ExpectNear(BoundsOfFirst(drawing, Role::kShape), c.expected, std::string(c.turn) + "/" + c.memberTurn);
    EXPECT_EQ(FillOf(*ItemsOf(drawing, Role::kShape)[0]), (render::Color{0, 255, 0, 1}));
  }
}

TEST_F(UserShapesTest, ADrawingThatCantBeReadIsNoted) {
  OpenChart(ChartPartXml("<c:plotArea/>",
                         "<c:userShapes r:id=\"rId7\" "
                         "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\"/>"),
            "<c:userShapes");
  DrawChart(*Book().Chart("/xl/charts/chart1.xml"), kChartWidth, kChartHeight, fonts_, notes_);
  ASSERT_EQ(notes_.size(), 1);
  EXPECT_EQ(notes_[0].rfind("The chart's shapes can't be read", 0), 0) << notes_[0];
}

/// Returns a chart with a picture among its shapes. The relationship leads to `bytes`.
std::string PictureXml(const std::string& crop, const std::string& turn) {
  return "<cdr:pic><cdr:nvPicPr><cdr:cNvPr id=\"2\" "
         "name=\"Logo\"/><cdr:cNvPicPr/></cdr:nvPicPr><cdr:blipFill>"
         "<a:blip xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\" "
         "r:embed=\"rId1\"/>" +
         crop + "</cdr:blipFill><cdr:spPr><a:xfrm" + turn + "/></cdr:spPr></cdr:pic>";
}

TEST_F(UserShapesTest, PicturesFillTheirFrameAsFarAsTheyAreNotCropped) {
  Drawing red{9, 9, "", "", {}};
  red.items.push_back(
      {{}, render::PathItem{render::Path().AddRect({0, 0, 9, 9}), render::SolidFill{{255, 0, 0, 1}}, {}}});
  const std::string png = MakePng(red, fonts_);
  struct Case {
    std::string bytes, crop, turn;
    Rect place;
  };
  for (const Case& c : {Case{png, "", "", {100, 50, 200, 50}},
                        Case{png, R"(<a:srcRect l="50000" b="75000"/>)", "", {-100, 50, 400, 200}},
                        Case{"GIF89a", "", "", {}}, Case{png, "", " rot=\"5400000\"", {}}}) {
    OpenChart(ChartPartXml("<c:plotArea/>",
                           "<c:userShapes r:id=\"rId7\" "
                           "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/"
                           "relationships\"/>"),
              "<c:userShapes xmlns:c=\"http://schemas.openxmlformats.org/drawingml/2006/chart\" "
              "xmlns:cdr=\"http://schemas.openxmlformats.org/drawingml/2006/chartDrawing\" "
              "xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\">" +
                  Anchor(PictureXml(c.crop, c.turn)) + "</c:userShapes>");
    xlsx::Package& package = Book().Package();
    package.Add("/xl/media/image1.png", "image/png", c.bytes);
    package.AddRelationship("/xl/drawings/drawing2.xml", "image", "/xl/media/image1.png");  // rId1
    notes_.clear();
    const Drawing drawing =
        DrawChart(*Book().Chart("/xl/charts/chart1.xml"), kChartWidth, kChartHeight, fonts_, notes_);
    const auto pictures = ItemsOf(drawing, Role::kShape);
    if (c.place.width == 0) {
      EXPECT_TRUE(pictures.empty());
      EXPECT_EQ(
          notes_,
          render::Notes{
              "A picture isn't drawn because it is rotated or mirrored, isn't PNG, or is too large: Logo."});
      continue;
    }
    ASSERT_EQ(pictures.size(), 1);
    ExpectNear(BoundsOf(*pictures[0]), c.place, c.crop);
    const std::string svg = MakeSvg(drawing);
    EXPECT_NE(svg.find("data:image/png;base64,iVBORw0KGgo"), std::string::npos);
    Drawing without = drawing;
    std::erase_if(without.items, [](const Item& item) { return item.tag.role == Role::kShape; });
    EXPECT_NE(MakePng(drawing, fonts_), MakePng(without, fonts_));
    EXPECT_TRUE(notes_.empty());
  }
}

TEST(PlacementTest, InnerTurnsComeBeforeOuterOnes) {
  const auto placement = render::Placement().Turned({0, 0}, 90).Turned({10, 0}, 0, {.horizontal = true});
  const render::Point at = placement.Map({13, 1});  // The point is mirrored to (7, 1), then rotated.
  EXPECT_NEAR(at.x, -1, 1e-9);
  EXPECT_NEAR(at.y, 7, 1e-9);
  EXPECT_EQ(placement.Rotation(), 90);
}

TEST_F(UserShapesTest, ShapesThrowShadowsAndSayOtherEffects) {
  const std::string effects =
      "<a:effectLst><a:glow/><a:outerShdw dist=\"127000\" dir=\"5400000\"><a:srgbClr val=\"445566\"/>"
      "</a:outerShdw></a:effectLst>";
  const Drawing drawing = DrawWith(Anchor(ShapeXml("ellipse", Solid("FF0000") + effects)));
  const auto shadows = ItemsOf(drawing, Role::kShadow), shapes = ItemsOf(drawing, Role::kShape);
  ASSERT_EQ(shadows.size(), 1u);
  ASSERT_EQ(shapes.size(), 1u);
  const Rect own = BoundsOf(*shapes[0]), cast = BoundsOf(*shadows[0]);
  EXPECT_NEAR(cast.left, own.left, 1e-9);
  EXPECT_NEAR(cast.top, own.top + 10, 1e-9);
  EXPECT_EQ(HexOf(std::get<render::ShadowItem>(shadows[0]->content).color), "#445566");
  EXPECT_EQ(notes_, render::Notes{"Glows aren't drawn."});
}

}  // namespace
}  // namespace plotsmith::test

#include "render/cairo/CairoPainter.h"
#include "render/shapes/Placement.h"
#include "render/svg/SvgWriter.h"
#include "tests/render/DrawingTest.h"

namespace plotsmith::test {
namespace {

constexpr double kChartWidth = 400, kChartHeight = 200;  // The size of the chart in points.

S Anchor(const S& object) {
  return "<cdr:relSizeAnchor><cdr:from><cdr:x>0.25</cdr:x><cdr:y>0.25</cdr:y></cdr:from><cdr:to><cdr:x>0.75"
         "</cdr:x><cdr:y>0.5</cdr:y></cdr:to>" +
         object + "</cdr:relSizeAnchor>";
}

/// Returns a shape with its own position in points, which is used inside a group.
S ShapeXml(const S& form, const S& inside = "", const Rect& place = {}, const S& turn = "") {
  const auto emu = [](double points) { return std::to_string(std::lround(points * 12700)); };
  return "<cdr:sp><cdr:nvSpPr><cdr:cNvPr id=\"2\" "
         "name=\"Sign\"/><cdr:cNvSpPr/></cdr:nvSpPr><cdr:spPr><a:xfrm" +
         turn + "><a:off x=\"" + emu(place.left) + "\" y=\"" + emu(place.top) + "\"/><a:ext cx=\"" +
         emu(place.width) + "\" cy=\"" + emu(place.height) + "\"/></a:xfrm><a:prstGeom prst=\"" + form +
         "\"><a:avLst/></a:prstGeom>" + inside + "</cdr:spPr></cdr:sp>";
}

class UserShapesTest : public DrawingTest {
 protected:
  Drawing DrawWith(const S& anchors) {
    OpenShapes(anchors);
    return DrawOpen(kChartWidth, kChartHeight);
  }
};

TEST_F(UserShapesTest, GroupsPlaceStretchAndTurnTheirMembers) {
  const auto group = [](const S& turn, const S& members) {
    return Anchor(
        "<cdr:grpSp><cdr:nvGrpSpPr><cdr:cNvPr id=\"3\" name=\"G\"/><cdr:cNvGrpSpPr/></cdr:nvGrpSpPr>"
        "<cdr:grpSpPr><a:xfrm" +
        turn +
        "><a:off x=\"0\" y=\"0\"/><a:ext cx=\"1\" cy=\"1\"/><a:chOff x=\"127000\" y=\"0\"/>"
        "<a:chExt cx=\"1270000\" cy=\"1270000\"/></a:xfrm>" +
        SolidXml("00FF00") + "</cdr:grpSpPr>" + members + "</cdr:grpSp>");
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
    ExpectNear(BoxOf(drawing, Role::kShape), c.expected, S(c.turn) + "/" + c.memberTurn, 0.01);
    EXPECT_EQ(FillOf(ItemsOf(drawing, Role::kShape)[0]), "#00FF00");
  }
}

TEST_F(UserShapesTest, ADrawingThatCantBeReadIsNoted) {
  DrawWith("<cdr:relSizeAnchor");
  ASSERT_EQ(notes_.size(), 1);
  EXPECT_EQ(notes_[0].rfind("The chart's shapes can't be read", 0), 0) << notes_[0];
}

/// Returns a chart with a picture among its shapes. The relationship leads to `bytes`.
S PictureXml(const S& crop, const S& turn) {
  return "<cdr:pic><cdr:nvPicPr><cdr:cNvPr id=\"2\" "
         "name=\"Logo\"/><cdr:cNvPicPr/></cdr:nvPicPr><cdr:blipFill>"
         "<a:blip xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\" "
         "r:embed=\"rId1\"/>" +
         crop + "</cdr:blipFill><cdr:spPr><a:xfrm" + turn + "/></cdr:spPr></cdr:pic>";
}

TEST_F(UserShapesTest, PicturesFillTheirFrameAsFarAsTheyAreNotCropped) {
  Drawing red{9, 9, "", "", {}};
  red.items.push_back(
      {{}, PathItem{render::Path().AddRect({0, 0, 9, 9}), render::SolidFill{{255, 0, 0, 1}}, {}}});
  const S png = MakePng(red, SharedFonts());
  struct Case {
    S bytes, crop, turn;
    Rect place;
  };
  for (const Case& c : {Case{png, "", "", {100, 50, 200, 50}},
                        Case{png, R"(<a:srcRect l="50000" b="75000"/>)", "", {-100, 50, 400, 200}},
                        Case{"GIF89a", "", "", {}}, Case{png, "", " rot=\"5400000\"", {}}}) {
    OpenShapes(Anchor(PictureXml(c.crop, c.turn)));
    xlsx::Package& package = Book().Package();
    package.Add("/xl/media/image1.png", "image/png", c.bytes);
    package.AddRelationship("/xl/drawings/drawing2.xml", "image", "/xl/media/image1.png");  // rId1
    const Drawing drawing = DrawOpen(kChartWidth, kChartHeight);
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
    ExpectNear(BoundsOf(pictures[0]), c.place, c.crop, 0.01);
    const S svg = MakeSvg(drawing);
    EXPECT_NE(svg.find("data:image/png;base64,iVBORw0KGgo"), S::npos);
    Drawing without = drawing;
    std::erase_if(without.items, [](const Item& item) { return item.tag.role == Role::kShape; });
    EXPECT_NE(MakePng(drawing, SharedFonts()), MakePng(without, SharedFonts()));
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
  const S effects =
      "<a:effectLst><a:glow/><a:outerShdw dist=\"127000\" dir=\"5400000\"><a:srgbClr val=\"445566\"/>"
      "</a:outerShdw></a:effectLst>";
  const Drawing drawing = DrawWith(Anchor(ShapeXml("ellipse", SolidXml("FF0000") + effects)));
  const auto shadows = ItemsOf(drawing, Role::kShadow), shapes = ItemsOf(drawing, Role::kShape);
  ASSERT_EQ(shadows.size(), 1u);
  ASSERT_EQ(shapes.size(), 1u);
  const Rect own = BoundsOf(shapes[0]), cast = BoundsOf(shadows[0]);
  EXPECT_NEAR(cast.left, own.left, 1e-9);
  EXPECT_NEAR(cast.top, own.top + 10, 1e-9);
  EXPECT_EQ(HexOf(std::get<render::ShadowItem>(shadows[0].content).color), "#445566");
  EXPECT_EQ(notes_, render::Notes{"Glows aren't drawn."});
}

}  // namespace
}  // namespace plotsmith::test

#include "render/cairo/CairoPainter.h"
#include "render/svg/SvgWriter.h"
#include "runtime/Strings.h"
#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;
using render::ShadowItem;

/// Shape properties with a red fill and a shadow. Lengths are EMU, angles 1/60000 degree.
S ShadowedXml(const S& attributes, const S& alpha = "40000") {
  return LookXml(SolidXml("FF0000") + "<a:effectLst><a:outerShdw " + attributes +
                 "><a:srgbClr val=\"112233\"><a:alpha val=\"" + alpha +
                 "\"/></a:srgbClr></a:outerShdw></a:effectLst>");
}

S ShadowedColumns(const S& properties, const S& behind = "") {
  return PlotXml(ColumnsXml(SeriesXml(0, {3, 1}, properties)) + AxesXml(), behind);
}

class ShadowTest : public DrawingTest {};

TEST_F(ShadowTest, IsTheShapeMovedInItsDirectionBeforeTheShape) {
  // 3 points to the lower right, blurred over 4 points
  const Drawing drawing =
      Draw(ShadowedColumns(ShadowedXml("blurRad=\"50800\" dist=\"38100\" dir=\"2700000\" algn=\"tl\"")));
  EXPECT_EQ(notes_, render::Notes());
  const auto shadows = ItemsOf(drawing, Role::kShadow, 1);
  const auto bars = ItemsOf(drawing, Role::kBar, 1);
  ASSERT_EQ(shadows.size(), 2u);
  for (std::size_t i = 0; i < 2; ++i) {
    const auto& shadow = std::get<ShadowItem>(shadows[i].content);
    const Rect own = BoundsOf(bars[i]), cast = BoundsOf(shadows[i]);
    const double away = 3 * std::sqrt(0.5);
    ExpectNear(cast, {own.left + away, own.top + away, own.width, own.height}, "", 1e-9);
    EXPECT_EQ(HexOf(shadow.color), "#112233");
    EXPECT_DOUBLE_EQ(shadow.color.alpha, 0.4);
    EXPECT_DOUBLE_EQ(shadow.blur, 2);
    EXPECT_TRUE(shadow.filled);
    EXPECT_EQ(shadow.lineWidth, 0);
    EXPECT_EQ(shadows[i].tag.point, static_cast<int>(i + 1));
  }
  const auto behind = std::find_if(drawing.items.begin(), drawing.items.end(),
                                   [](const Item& item) { return item.tag.role == Role::kShadow; });
  ASSERT_NE(behind, drawing.items.end());
  EXPECT_EQ((behind + 1)->tag, (render::Tag{Role::kBar, 1, 1}));
}

TEST_F(ShadowTest, MayBeLargerAndLean) {
  // twice as wide about the middle of the lower edge, half as high, leaning by 45 degrees
  const Drawing drawing =
      Draw(ShadowedColumns(ShadowedXml("sx=\"200000\" sy=\"50%\" kx=\"2700000\" algn=\"b\"")));
  const Rect own = BoxesOf(drawing, Role::kBar)[0], cast = BoxesOf(drawing, Role::kShadow)[0];
  EXPECT_NEAR(cast.Bottom(), own.Bottom(), 1e-9);
  EXPECT_NEAR(cast.height, own.height / 2, 1e-9);
  EXPECT_NEAR(cast.width, 2 * own.width + own.height, 1e-9);
  EXPECT_NEAR(cast.Right(), own.Center().x + own.width, 1e-9);
}

TEST_F(ShadowTest, GrowsAboutThePointOfItsAlignment) {
  const struct {
    const char* alignment;
    double x, y;  // of the point, in shares of the shape
  } cases[] = {{"tl", 0, 0},  {"t", 0.5, 0}, {"tr", 1, 0},  {"l", 0, 0.5}, {"ctr", 0.5, 0.5},
               {"r", 1, 0.5}, {"bl", 0, 1},  {"b", 0.5, 1}, {"br", 1, 1}};
  for (const auto& test : cases) {
    const Drawing drawing =
        Draw(ShadowedColumns(ShadowedXml(S("sx=\"200000\" sy=\"200000\" algn=\"") + test.alignment + "\"")));
    const Rect own = BoxesOf(drawing, Role::kBar)[0], cast = BoxesOf(drawing, Role::kShadow)[0];
    EXPECT_NEAR(cast.left, own.left - test.x * own.width, 1e-9) << test.alignment;
    EXPECT_NEAR(cast.top, own.top - test.y * own.height, 1e-9) << test.alignment;
  }
}

TEST_F(ShadowTest, IsThrownByEveryPartOfAChart) {
  const S shadow = ShadowedXml("dist=\"38100\"");
  const S labels = "<c:dLbls>" + shadow + "<c:showVal val=\"1\"/></c:dLbls>";
  const S title = TitleXml("Sales", shadow);
  const S line = "<c:marker><c:symbol val=\"circle\"/>" + shadow + "</c:marker>";
  const Drawing drawing = Draw(title + "<c:plotArea>" + ColumnsXml(SeriesXml(0, {3}, shadow + labels)) +
                               LinesXml(SeriesXml(1, {2}, line)) + AxesXml() + shadow +
                               "</c:plotArea><c:legend>" + shadow + "</c:legend>");
  Texts casting;
  for (std::size_t i = 0; i + 1 < drawing.items.size(); ++i) {
    if (drawing.items[i].tag.role == Role::kShadow)
      casting.emplace_back(NameOf(drawing.items[i + 1].tag.role));
  }
  EXPECT_EQ(casting, (Texts{"PlotArea", "Bar", "Marker", "DataLabel", "Title", "Legend", "LegendKey"}));
}

TEST_F(ShadowTest, LooksAlikeInSvgAndPng) {
  const Drawing drawing =
      Draw(ShadowedColumns(ShadowedXml("blurRad=\"50800\" dist=\"127000\" dir=\"0\"", "100000")));
  const S svg = MakeSvg(drawing);
  EXPECT_NE(svg.find("x=\"-6\" y=\"-6\" width=\"396\" height=\"282\"><feGaussianBlur stdDeviation=\"2\"/>"),
            S::npos);
  EXPECT_EQ(svg.find("<filter "), svg.rfind("<filter "));  // Both shadows share the filter.
  EXPECT_NE(svg.find("fill=\"#112233\" filter=\"url(#"), S::npos);
  const render::Raster raster = MakeRaster(drawing, SharedFonts(), 72);
  const Rect cast = BoxesOf(drawing, Role::kShadow)[0];
  const auto row = static_cast<std::size_t>(cast.Center().y);
  const auto redAt = [&](double x) {
    const auto index = row * static_cast<std::size_t>(raster.width) + static_cast<std::size_t>(x);
    return static_cast<int>(raster.values[index] >> 16 & 255);
  };
  // red of the shadow is 17, that of the ground 255; the edge is between, and 3 deviations away there is none
  EXPECT_NEAR(redAt(cast.Right() - 7), 17, 3);
  EXPECT_NEAR(redAt(cast.Right() - 0.5), 136, 30);
  EXPECT_NEAR(redAt(cast.Right() + 8), 255, 3);
}

TEST_F(ShadowTest, IsDrawnOfVeryWideShapes) {
  const S bars =
      GroupXml("barChart", "<c:barDir val=\"bar\"/>",
               SeriesXml(0, {3}, ShadowedXml("blurRad=\"12700\" dist=\"76200\" dir=\"5400000\"", "100000")));
  const Drawing drawing = Draw(PlotXml(bars + AxesXml("", "", true)), "", 20'000, 100);
  const render::Raster raster = MakeRaster(drawing, SharedFonts(), 72);
  const Rect cast = BoxesOf(drawing, Role::kShadow)[0];
  ASSERT_GT(cast.width, 16'384);
  const auto index = static_cast<std::size_t>(cast.Bottom() - 3) * static_cast<std::size_t>(raster.width) +
                     static_cast<std::size_t>(cast.Center().x);
  EXPECT_NEAR(static_cast<int>(raster.values[index] >> 16 & 255), 17, 3);
}

TEST_F(ShadowTest, ThinBarsHaveNoneAndSayIt) {
  const S shadowed = ShadowedXml("dist=\"38100\"");
  const S sentence = "Shadows of bars that are thinner than a pixel aren't drawn.";
  const struct {
    S more;
    render::Notes notes;
  } cases[] = {
      {"", {}}, {shadowed, {sentence}}, {"<c:dPt><c:idx val=\"7\"/>" + shadowed + "</c:dPt>", {sentence}}};
  for (const auto& [more, notes] : cases) {
    const Drawing drawing = Draw(PlotXml(ColumnsXml(SeriesXml(0, Numbers(20'000, 5), more)) + AxesXml()));
    EXPECT_EQ(notes_, notes) << more;
    EXPECT_EQ(ItemsOf(drawing, Role::kShadow).size(), 0u) << more;
  }
}

TEST_F(ShadowTest, OfWhatIsNotDrawnIsNotReported) {
  const S effect = "<a:effectLst><a:outerShdw><a:srgbClr val=\"000000\"/></a:outerShdw></a:effectLst>";
  const S line = LookXml(effect), noLine = LookXml("<a:ln><a:noFill/></a:ln>" + effect);
  const S text = "<c:txPr><a:bodyPr/><a:p><a:pPr><a:defRPr>" + effect + "</a:defRPr></a:pPr></a:p></c:txPr>";
  const S title = "<c:title><c:tx><c:rich><a:bodyPr/><a:p><a:r><a:rPr>" + effect +
                  "</a:rPr><a:t>Sales</a:t></a:r></a:p></c:rich></c:tx></c:title>";
  const S deleted = "<c:delete val=\"1\"/>", shown = "<c:delete val=\"0\"/>";
  const S ofAxes = "Shadows of axes aren't drawn.", ofTexts = "Shadows of texts aren't drawn.";
  const struct {
    S axis;
    render::Notes notes;
  } cases[] = {
      {line, {ofAxes}},
      {deleted + line, {}},
      {"<c:delete/>" + line, {}},
      {noLine, {}},
      {title, {ofTexts}},
      {deleted + title, {}},
      {text, {ofTexts}},
      {deleted + text, {}},
      {"<c:tickLblPos val=\"none\"/>" + text, {}},
      {"<c:tickLblPos val=\"none\"/>" + title, {ofTexts}},
      // a deleted axis keeps its gridlines
      {deleted + "<c:majorGridlines>" + line + "</c:majorGridlines>", {"Shadows of gridlines aren't drawn."}},
      {deleted + "<c:majorGridlines>" + noLine + "</c:majorGridlines>", {}},
      {deleted + "<c:spPr><a:effectLst><a:glow rad=\"63500\"/></a:effectLst></c:spPr>", {}},
      {deleted + "<c:spPr><a:effectDag/></c:spPr>", {}},
      {"<c:spPr><a:effectDag/></c:spPr>", {"Effects in a graph (effectDag) aren't drawn."}},
  };
  for (const auto& [axis, notes] : cases) {
    S axes = AxesXml("", axis);
    if (axis.starts_with("<c:delete")) axes = runtime::Replace(axes, shown, "");
    Draw(PlotXml(ColumnsXml(SeriesXml(0, {3, 1})) + axes));
    EXPECT_EQ(notes_, notes) << axis;
  }
}

TEST_F(ShadowTest, ATextWithoutAFrameHasNoneAndSaysIt) {
  const S shadow = "<a:effectLst><a:outerShdw><a:srgbClr val=\"000000\"/></a:outerShdw></a:effectLst>";
  const Drawing drawing = Draw(TitleXml("Sales", LookXml(shadow)) + "<c:plotArea/>");
  EXPECT_EQ(ItemsOf(drawing, Role::kShadow).size(), 0u);
  EXPECT_EQ(notes_, (render::Notes{"Shadows of texts aren't drawn."}));
}

TEST_F(ShadowTest, OtherEffectsAreReported) {
  const auto effects = [](const S& list) { return LookXml("<a:effectLst>" + list + "</a:effectLst>"); };
  struct {
    S properties;
    render::Notes notes;
  } const kCases[] = {
      {effects(""), {}},
      {effects("<a:glow rad=\"63500\"/>"), {"Glows aren't drawn."}},
      {effects("<a:innerShdw/><a:softEdge rad=\"1\"/>"),
       {"Inner shadows aren't drawn.", "Soft edges aren't drawn."}},
      {effects("<a:reflection/><a:prstShdw prst=\"shdw1\"/>"),
       {"Reflections aren't drawn.", "Preset shadows aren't drawn."}},
      {"<c:spPr><a:sp3d><a:bevelT w=\"1\"/></a:sp3d></c:spPr>", {"Bevels aren't drawn."}},
  };
  for (const auto& [properties, notes] : kCases) {
    const Drawing drawing = Draw(ShadowedColumns(properties));
    EXPECT_EQ(notes_, notes) << properties;
    EXPECT_EQ(ItemsOf(drawing, Role::kShadow).size(), 0u) << properties;
  }
}

TEST_F(ShadowTest, EndlessShadowsAreLimited) {
  const S wild =
      ShadowedXml("blurRad=\"9e300\" dist=\"NaN\" dir=\"1e300\" sx=\"-1e9\" sy=\"inf\" kx=\"5400000\"");
  const Drawing drawing = Draw(PlotXml(ColumnsXml(SeriesXml(0, Numbers(300, 5), wild)) + AxesXml()));
  EXPECT_LT(ItemsOf(drawing, Role::kShadow).size(), 300u);
  EXPECT_EQ(notes_, (render::Notes{"The chart has more shadows than are drawn; the rest is left out."}));
  EXPECT_FALSE(MakePng(drawing, SharedFonts()).empty());
}

}  // namespace
}  // namespace plotsmith

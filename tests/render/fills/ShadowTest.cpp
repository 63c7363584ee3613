#include "render/cairo/CairoPainter.h"
#include "render/svg/SvgWriter.h"
#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;
using render::Drawing;
using render::Role;
using S = std::string;

/// Shape properties with a red filling and a shadow. Lengths are EMU, angles 1/60000 degree.
S ShadowedXml(const S& attributes, const S& alpha = "40000") {
  return "<c:spPr><a:solidFill><a:srgbClr val=\"FF0000\"/></a:solidFill><a:effectLst><a:outerShdw " +
         attributes + "><a:srgbClr val=\"112233\"><a:alpha val=\"" + alpha +
         "\"/></a:srgbClr></a:outerShdw></a:effectLst></c:spPr>";
}

S ColumnsXml(const S& properties, const S& behind = "") {
  return PlotXml(
      GroupXml("barChart", "<c:barDir val=\"col\"/>", SeriesXml(0, {3, 1}, properties)) + AxesXml(), behind);
}

class ShadowTest : public DrawingTest {};

TEST_F(ShadowTest, LooksAlikeInSvgAndPng) {
  const Drawing drawing =
      Draw(ColumnsXml(ShadowedXml("blurRad=\"50800\" dist=\"127000\" dir=\"0\"", "100000")));
  const S svg = MakeSvg(drawing);
  EXPECT_NE(svg.find("<feGaussianBlur stdDeviation=\"2\"/>"), S::npos);
  EXPECT_EQ(svg.find("<filter "), svg.rfind("<filter "));  // Both shadows share the filter.
  EXPECT_NE(svg.find("fill=\"#112233\" filter=\"url(#"), S::npos);
  const render::Raster raster = MakeRaster(drawing, SharedFonts(), 72);
  const render::Rect cast = BoxesOf(drawing, Role::kShadow)[0];
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
  const render::Rect cast = BoxesOf(drawing, Role::kShadow)[0];
  ASSERT_GT(cast.width, 16'384);
  const auto index = static_cast<std::size_t>(cast.Bottom() - 3) * static_cast<std::size_t>(raster.width) +
                     static_cast<std::size_t>(cast.Center().x);
  EXPECT_NEAR(static_cast<int>(raster.values[index] >> 16 & 255), 17, 3);
}

TEST_F(ShadowTest, ThinBarsHaveNoneAndSayIt) {
  const Drawing drawing =
      Draw(PlotXml(GroupXml("barChart", "<c:barDir val=\"col\"/>",
                            SeriesXml(0, std::vector<double>(20'000, 5), ShadowedXml("dist=\"38100\""))) +
                   AxesXml()));
  EXPECT_EQ(notes_, (render::Notes{"Shadows of bars that are thinner than a pixel aren't drawn."}));
}

TEST_F(ShadowTest, ATextWithoutAFrameHasNoneAndSaysIt) {
  const S title =
      "<c:title><c:tx><c:rich><a:bodyPr/><a:p><a:r><a:t>Sales</a:t></a:r></a:p></c:rich></c:tx>"
      "<c:spPr><a:effectLst><a:outerShdw><a:srgbClr val=\"000000\"/></a:outerShdw></a:effectLst></c:spPr>"
      "</c:title>";
  const Drawing drawing = Draw(title + "<c:plotArea/>");
  EXPECT_EQ(ItemsOf(drawing, Role::kShadow).size(), 0u);
  EXPECT_EQ(notes_, (render::Notes{"Shadows of texts aren't drawn."}));
}

TEST_F(ShadowTest, OtherEffectsAreSaid) {
  const auto effects = [](const S& list) {
    return "<c:spPr><a:effectLst>" + list + "</a:effectLst></c:spPr>";
  };
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
    const Drawing drawing = Draw(ColumnsXml(properties));
    EXPECT_EQ(notes_, notes) << properties;
    EXPECT_EQ(ItemsOf(drawing, Role::kShadow).size(), 0u) << properties;
  }
}

TEST_F(ShadowTest, EndlessShadowsAreLimited) {
  const S wild =
      ShadowedXml("blurRad=\"9e300\" dist=\"NaN\" dir=\"1e300\" sx=\"-1e9\" sy=\"inf\" kx=\"5400000\"");
  const Drawing drawing = Draw(PlotXml(
      GroupXml("barChart", "<c:barDir val=\"col\"/>", SeriesXml(0, std::vector<double>(300, 5), wild)) +
      AxesXml()));
  EXPECT_LT(ItemsOf(drawing, Role::kShadow).size(), 300u);
  EXPECT_EQ(notes_, (render::Notes{"The chart has more shadows than are drawn; the rest is left out."}));
  EXPECT_FALSE(MakePng(drawing, SharedFonts()).empty());
}

}  // namespace
}  // namespace plotsmith

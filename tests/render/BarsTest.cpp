#include <map>

#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;
using render::Drawing;
using render::Role;
using S = std::string;

TEST_F(DrawingTest, BarsBelowZeroAreInvertedIfTheFileSaysSo) {
  const auto solid = [](const S& color) {
    return "<c:spPr><a:solidFill><a:srgbClr val=\"" + color + "\"/></a:solidFill></c:spPr>";
  };
  const S invert = "<c:invertIfNegative val=\"1\"/>", keep = "<c:invertIfNegative val=\"0\"/>";
  const S yellow =
      "<c:extLst><c:ext uri=\"{6F2FDCE9-48DA-4B69-8628-5D25D57E5C99}\" "
      "xmlns:c14=\"http://schemas.microsoft.com/office/drawing/2007/8/2/chart\"><c14:invertSolidFillFmt>"
      "<c14:spPr><a:solidFill><a:srgbClr val=\"FFFF00\"/></a:solidFill></c14:spPr></c14:invertSolidFillFmt>"
      "</c:ext></c:extLst>";
  const auto point = [](int index, const S& more) {
    return "<c:dPt><c:idx val=\"" + std::to_string(index) + "\"/>" + more + "</c:dPt>";
  };
  struct {
    const char* what;
    S group, series, behind;
    std::vector<S> fills;  // The fillings for the values 4, -3 and -1.
  } cases[] = {
      {"as it is", "", solid("FF0000") + keep, "", {"#FF0000", "#FF0000", "#FF0000"}},
      {"white", "", solid("FF0000") + invert, "", {"#FF0000", "#FFFFFF", "#FFFFFF"}},
      {"a colour", "", solid("FF0000") + invert, yellow, {"#FF0000", "#FFFF00", "#FFFF00"}},
      {"a colour that isn't asked for",
       "",
       solid("FF0000") + keep,
       yellow,
       {"#FF0000", "#FF0000", "#FF0000"}},
      {"a colour of a point",
       "",
       solid("FF0000") + invert + point(1, solid("00FF00")),
       "",
       {"#FF0000", "#00FF00", "#FFFFFF"}},
      {"a point that isn't inverted",
       "",
       solid("FF0000") + invert + point(2, keep),
       "",
       {"#FF0000", "#FFFFFF", "#FF0000"}},
      {"varied colours", "<c:varyColors val=\"1\"/>", invert, "", {"#4F81BD", "#FFFFFF", "#FFFFFF"}},
  };
  for (const auto& test : cases) {
    for (const S kind : {"barChart", "bar3DChart"}) {
      const Drawing drawing =
          Draw(PlotXml(GroupXml(kind, "<c:barDir val=\"col\"/><c:grouping val=\"clustered\"/>" + test.group,
                                SeriesXml(0, {4, -3, -1}, test.series, test.behind)) +
                       AxesXml()));
      std::map<int, S> fills;  // By point. The front face of a 3-D bar is painted last.
      for (const auto& item : ItemsOf(drawing, Role::kBar)) fills[item.tag.point] = FillOf(item);
      std::vector<S> found;
      for (const auto& [number, fill] : fills) found.push_back(fill);
      EXPECT_EQ(found, test.fills) << test.what << " of a " << kind;
    }
  }
}

TEST_F(DrawingTest, PatternsAreInvertedByTheirColors) {
  const S pattern =
      "<c:spPr><a:pattFill prst=\"pct50\"><a:fgClr><a:srgbClr val=\"FF0000\"/></a:fgClr><a:bgClr><a:srgbClr "
      "val=\"00FF00\"/></a:bgClr></a:pattFill></c:spPr><c:invertIfNegative val=\"1\"/>";
  const Drawing drawing = Draw(PlotXml(GroupXml("barChart", "", SeriesXml(0, {4, -3}, pattern)) + AxesXml()));
  std::vector<S> foregrounds;
  for (const auto& item : ItemsOf(drawing, Role::kBar)) {
    const auto& fill = std::get<render::PathItem>(item.content).fill;
    foregrounds.push_back(HexOf(std::get<render::PatternFill>(fill).foreground));
  }
  EXPECT_EQ(foregrounds, (std::vector<S>{"#FF0000", "#00FF00"}));
}

}  // namespace
}  // namespace plotsmith

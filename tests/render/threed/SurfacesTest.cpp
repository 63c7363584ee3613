#include <chrono>
#include <numeric>

#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;
using render::Drawing;
using render::Role;
using S = std::string;
using Texts = std::vector<S>;

const S kScale = "<c:scaling><c:max val=\"30\"/><c:min val=\"0\"/></c:scaling><c:majorUnit val=\"10\"/>";

class SurfacesTest : public DrawingTest {
 protected:
  Drawing DrawSurface(const S& element, const std::vector<std::vector<double>>& rows, const S& first = "",
                      const S& last = "", const S& view = "", const S& value = kScale) {
    S series;
    for (std::size_t i = 0; i < rows.size(); ++i) series += SeriesXml(static_cast<int>(i), rows[i]);
    S axes = AxesXml("", value);
    const S depth =
        "<c:serAx><c:axId val=\"3\"/><c:scaling/><c:delete val=\"0\"/><c:axPos val=\"b\"/>"
        "<c:crossAx val=\"1\"/></c:serAx>";
    return Draw("<c:autoTitleDeleted val=\"1\"/><c:view3D>" + view + "</c:view3D><c:plotArea>" +
                GroupXml(element, first, series, last + "<c:axId val=\"3\"/>") + axes + depth +
                "</c:plotArea><c:legend/>");
  }
};

TEST_F(SurfacesTest, BandsFollowTheUnitsOfTheirAxis) {
  const auto scaling = [](const S& least, const S& most, const S& base = "") {
    return "<c:scaling>" + base + "<c:max val=\"" + most + "\"/><c:min val=\"" + least + "\"/></c:scaling>";
  };
  const S thousands = "<c:dispUnits><c:builtInUnit val=\"thousands\"/></c:dispUnits>";
  struct {
    S axis;
    Texts bands;
  } const kCases[] = {
      {scaling("-1", "2.5") + "<c:majorUnit val=\"1\"/>", {"2-2.5", "1-2", "0-1", "-1-0"}},
      {scaling("1", "1000", "<c:logBase val=\"10\"/>"), {"100-1000", "10-100", "1-10"}},
      {scaling("0", "4000") + "<c:majorUnit val=\"2000\"/>" + thousands, {"2-4", "0-2"}},
  };
  for (const auto& test : kCases) {
    const Drawing drawing = DrawSurface("surface3DChart", {{1, 2}, {2, 1}}, "", "", "", test.axis);
    EXPECT_EQ(TextsOf(drawing, Role::kLegendEntry), test.bands);
  }
}

TEST_F(SurfacesTest, WildSurfacesTakeLittleTime) {
  const auto start = std::chrono::steady_clock::now();
  std::vector<std::vector<double>> rows(60, std::vector<double>(3000));
  for (std::size_t r = 0; r < rows.size(); ++r) {
    for (std::size_t c = 0; c < rows[r].size(); ++c) rows[r][c] = (r + c) % 2 == 0 ? 1e300 : -1e300;
  }
  for (const char* element : {"surfaceChart", "surface3DChart"}) {
    EXPECT_LT(DrawSurface(element, rows, "", "", "", "<c:majorUnit val=\"1e290\"/>").items.size(), 400'000u);
    EXPECT_EQ(notes_,
              (render::Notes{"The surface has more points than are drawn; of each few neighbours, one is."}));
    for (const auto& few : {std::vector<std::vector<double>>{{1, 2}}, {{1}, {2}}, {{}, {}}}) {
      EXPECT_EQ(ItemsOf(DrawSurface(element, few), Role::kSurface).size(), 0u);
      EXPECT_EQ(notes_, (render::Notes{"A surface isn't drawn, as it takes two series and two categories."}));
    }
    const Drawing blank = DrawSurface(element, {{kNoValue, kNoValue}, {kNoValue, kNoValue}});
    EXPECT_EQ(blank.items.empty(), false);
  }
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

}  // namespace
}  // namespace plotsmith

#include <numeric>

#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;

const S kScale = ScalingXml("0", "30") + "<c:majorUnit val=\"10\"/>";

/// Returns the area of a path of polygons in square points.
double AreaOf(const Item& item) {
  double twice = 0, part = 0;
  Point first, last;
  for (const PathStep& step : std::get<PathItem>(item.content).path.Steps()) {
    const Point to = step.kind == PathStep::Kind::kClose ? first : step.to;
    if (step.kind == PathStep::Kind::kMove) {
      first = to;
    } else {
      part += last.x * to.y - to.x * last.y;
    }
    last = to;
    if (step.kind == PathStep::Kind::kClose) twice += std::abs(std::exchange(part, 0));
  }
  return twice / 2;
}

class SurfacesTest : public DrawingTest {
 protected:
  Drawing DrawSurface(const S& element, const std::vector<std::vector<double>>& rows, const S& first = "",
                      const S& last = "", const S& view = "", const S& value = kScale, const S& legend = "") {
    S series;
    for (std::size_t i = 0; i < rows.size(); ++i) series += SeriesXml(static_cast<int>(i), rows[i]);
    const S group = GroupXml(element, first, series, last + "<c:axId val=\"3\"/>");
    return Draw(
        Plot3DXml(view, group + AxesXml("", value) + DepthAxisXml(), "<c:legend>" + legend + "</c:legend>"));
  }
};

TEST_F(SurfacesTest, ContoursSplitTheGroundByValue) {
  // a slope from 0 to 30 along the categories: each band takes a third of the ground
  const Drawing drawing = DrawSurface("surfaceChart", {{0, 15, 30}, {0, 15, 30}});
  EXPECT_EQ(notes_, render::Notes());
  EXPECT_EQ(DrawingComplaints(drawing), "");
  const auto bands = ItemsOf(drawing, Role::kSurface);
  ASSERT_EQ(bands.size(), 3u);
  const Rect ground = BoxOf(drawing, Role::kSurface);
  const Texts colors = {"#4F81BD", "#C0504D", "#9BBB59"};
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(bands[i].tag, (render::Tag{Role::kSurface, 0, static_cast<int>(i + 1)}));
    EXPECT_EQ(FillOf(bands[i]), colors[i]);
    EXPECT_NEAR(AreaOf(bands[i]), ground.width * ground.height / 3, 0.01);
    EXPECT_NEAR(BoundsOf(bands[i]).left, ground.left + ground.width * static_cast<double>(i) / 3, 1e-6);
  }
  EXPECT_GT(ground.height, 150);  // The ground fills the plot area.
  EXPECT_GT(ground.width, 200);
  EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 1), (Texts{"1", "2", "3"}));
  EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 2), Texts());
  EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 3), (Texts{"Series 0", "Series 1"}));
}

TEST_F(SurfacesTest, LegendsHaveTheBands) {
  const S format =
      "<c:bandFmts><c:bandFmt><c:idx val=\"1\"/>" + LookXml(SolidXml("FFC000")) + "</c:bandFmt></c:bandFmts>";
  for (const char* element : {"surfaceChart", "surface3DChart"}) {
    const Drawing drawing = DrawSurface(element, {{0, 30}, {30, 0}}, "", format);
    EXPECT_EQ(TextsOf(drawing, Role::kLegendEntry), (Texts{"20-30", "10-20", "0-10"})) << element;
    Texts keys;
    for (const Item& key : ItemsOf(drawing, Role::kLegendKey)) keys.push_back(FillOf(key));
    EXPECT_EQ(keys, (Texts{"#9BBB59", "#FFC000", "#4F81BD"})) << element;
    const S entries =
        "<c:legendEntry><c:idx val=\"1\"/><c:delete val=\"1\"/></c:legendEntry><c:legendEntry><c:idx "
        "val=\"2\"/><c:txPr><a:bodyPr/><a:p><a:pPr><a:defRPr "
        "sz=\"700\"/></a:pPr></a:p></c:txPr></c:legendEntry>";
    const auto some = ItemsOf(DrawSurface(element, {{0, 30}, {30, 0}}, "", format, "", kScale, entries),
                              Role::kLegendEntry);
    ASSERT_EQ(some.size(), 2u) << element;
    for (const std::size_t i : {0, 1}) {
      const auto& text = std::get<render::TextItem>(some[i].content);
      EXPECT_EQ(text.text, (Texts{"20-30", "0-10"})[i]) << element;
      EXPECT_EQ(text.font.size, i == 0 ? 7 : 10) << element;
    }
  }
}

TEST_F(SurfacesTest, BandsFollowTheUnitsOfTheirAxis) {
  const S thousands = "<c:dispUnits><c:builtInUnit val=\"thousands\"/></c:dispUnits>";
  struct {
    S axis;
    Texts bands;
  } const kCases[] = {
      {ScalingXml("-1", "2.5") + "<c:majorUnit val=\"1\"/>", {"2-2.5", "1-2", "0-1", "-1-0"}},
      {ScalingXml("1", "1000", "<c:logBase val=\"10\"/>"), {"100-1000", "10-100", "1-10"}},
      {ScalingXml("0", "4000") + "<c:majorUnit val=\"2000\"/>" + thousands, {"2-4", "0-2"}},
  };
  for (const auto& test : kCases) {
    const Drawing drawing = DrawSurface("surface3DChart", {{1, 2}, {2, 1}}, "", "", "", test.axis);
    EXPECT_EQ(TextsOf(drawing, Role::kLegendEntry), test.bands);
  }
}

TEST_F(SurfacesTest, SurfacesInThreeDimensionsCoverWhatIsBehind) {
  // One looks at a ridge from the front, with parallel rays. The second half of the depth is behind it.
  const S view = "<c:rotX val=\"10\"/><c:rotY val=\"0\"/><c:rAngAx val=\"0\"/><c:perspective val=\"0\"/>";
  const Drawing drawing = DrawSurface("surface3DChart", {{0, 0}, {30, 30}, {0, 0}}, "", "", view);
  EXPECT_EQ(notes_, render::Notes());
  const auto pieces = ItemsOf(drawing, Role::kSurface);
  ASSERT_GT(pieces.size(), 12u);
  // all pieces of the back are painted before those of the front
  std::vector<int> bands;
  for (const Item& piece : pieces) bands.push_back(piece.tag.point);
  EXPECT_EQ(bands.size() % 2, 0u);
  const auto half = static_cast<std::ptrdiff_t>(bands.size() / 2);
  EXPECT_EQ(std::count(bands.begin(), bands.begin() + half, 3),
            std::count(bands.begin() + half, bands.end(), 3));
  double back = 0, front = 0;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    (i < pieces.size() / 2 ? back : front) += BoundsOf(pieces[i]).Center().y;
  }
  EXPECT_LT(back, front);  // From above, what is behind is higher on the picture.
  EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 2), (Texts{"0", "10", "20", "30"}));
}

TEST_F(SurfacesTest, WireframesAreLinesInTheColoursOfTheirBands) {
  const Drawing drawing = DrawSurface("surfaceChart", {{0, 15, 30}, {0, 15, 30}}, "<c:wireframe val=\"1\"/>");
  const auto bands = ItemsOf(drawing, Role::kSurface);
  ASSERT_EQ(bands.size(), 3u);
  const Texts colors = {"#4F81BD", "#C0504D", "#9BBB59"};
  for (std::size_t i = 0; i < 3; ++i) {
    const auto& path = std::get<PathItem>(bands[i].content);
    EXPECT_TRUE(std::holds_alternative<std::monostate>(path.fill));
    EXPECT_EQ(HexOf(path.stroke.color), colors[i]);
  }
  const auto keys = ItemsOf(drawing, Role::kLegendKey);
  ASSERT_EQ(keys.size(), 3u);
  EXPECT_EQ(HexOf(std::get<PathItem>(keys[0].content).stroke.color), colors[2]);
}

TEST_F(SurfacesTest, WildSurfacesHaveAFewPieces) {
  std::vector<std::vector<double>> rows(60, std::vector<double>(3000));
  for (std::size_t r = 0; r < rows.size(); ++r) {
    for (std::size_t c = 0; c < rows[r].size(); ++c) rows[r][c] = (r + c) % 2 == 0 ? 1e300 : -1e300;
  }
  for (const char* element : {"surfaceChart", "surface3DChart"}) {
    EXPECT_LT(DrawSurface(element, rows, "", "", "", "<c:majorUnit val=\"1e290\"/>").items.size(), 400'000u);
    EXPECT_EQ(notes_,
              (render::Notes{"The surface has more points than are drawn; some points are left out."}));
    for (const auto& few : {std::vector<std::vector<double>>{{1, 2}}, {{1}, {2}}, {{}, {}}}) {
      EXPECT_EQ(ItemsOf(DrawSurface(element, few), Role::kSurface).size(), 0u);
      EXPECT_EQ(notes_,
                (render::Notes{"A surface isn't drawn because it needs two series and two categories."}));
    }
    const Drawing blank = DrawSurface(element, {{kNoValue, kNoValue}, {kNoValue, kNoValue}});
    EXPECT_EQ(blank.items.empty(), false);
  }
}

}  // namespace
}  // namespace plotsmith

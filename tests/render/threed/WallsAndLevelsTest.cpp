#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;

/// Returns a chart part with 3-D columns. `axis` has elements of the category axis.
S SolidColumns(const Numbers& values, const S& axis = "") {
  return ChartPartXml(
      Plot3DXml("<c:rotX val=\"15\"/><c:rotY val=\"20\"/><c:rAngAx val=\"1\"/>",
                GroupXml("bar3DChart", "<c:barDir val=\"col\"/>", SeriesXml(0, values)) + AxesXml(axis)));
}

using WallsAndLevelsTest = DrawingTest;

TEST_F(WallsAndLevelsTest, WallsOfDarkStylesAreFilled) {
  struct {
    int style;
    S fill;
  } const kCases[] = {{2, ""}, {34, "#E7E7E7"}, {35, "#E9EDF4"}, {42, "#3F3F3F"}};
  for (const auto& test : kCases) {
    S part = SolidColumns({1, 2});
    part.insert(part.find("<c:chart>"), "<c:style val=\"" + std::to_string(test.style) + "\"/>");
    const Drawing drawing = DrawPart(part);
    Texts fills;
    for (const Role role : {Role::kWall, Role::kFloor}) {
      for (const auto& item : ItemsOf(drawing, role)) {
        if (FillOf(item) != "none") fills.push_back(FillOf(item));
      }
    }
    EXPECT_EQ(fills, Texts(test.fill.empty() ? 0 : 3, test.fill)) << test.style;
  }
}

TEST_F(WallsAndLevelsTest, GridlinesAndMarksAreAtTheEdgesOfCategories) {
  for (const S orientation : {"minMax", "maxMin"}) {
    const S axis = "<c:scaling><c:orientation val=\"" + orientation + "\"/></c:scaling><c:majorGridlines/>";
    const Drawing drawing = DrawPart(SolidColumns({1, 2, 3}, axis));
    const Rect line = BoxOf(drawing, Role::kAxisLine, 1);
    for (const Role role : {Role::kGridline, Role::kTickMark}) {
      const auto items = BoxesOf(drawing, role, 1);
      ASSERT_EQ(items.size(), 4u) << orientation;
      for (std::size_t i = 0; i < 4; ++i) {
        const double share = static_cast<double>(orientation == "minMax" ? i : 3 - i) / 3;
        EXPECT_NEAR(items[i].left, line.left + share * line.width, 1e-6) << orientation << i;
      }
    }
  }
}

TEST_F(WallsAndLevelsTest, ALongSlantedLabelStaysOnTheChart) {
  Texts names(12, "Short");
  names.front() = "A first name that is so very long that nothing of the chart would be left for it";
  for (const S rotation : {"-2700000", "2700000"}) {
    Texts texts = names;
    if (rotation[0] != '-') std::reverse(texts.begin(), texts.end());
    const S columns = ColumnsXml(SeriesXml(0, Numbers(12, 1), "", "", CategoriesXml(texts)));
    const Drawing drawing =
        Draw(PlotXml(columns + AxesXml(BodyXml("rot=\"" + rotation + "\""))), "", 384, 400);
    EXPECT_EQ(DrawingComplaints(drawing), "") << rotation;
    const Texts labels = TextsOf(drawing, Role::kTickLabel, 1);
    ASSERT_EQ(labels.size(), 12u) << rotation;
    EXPECT_GT(BoxOf(drawing, Role::kPlotArea).width, 384 * 0.7) << rotation;
    const S shown = rotation[0] == '-' ? labels.front() : labels.back();
    EXPECT_TRUE(shown.starts_with("A f") && shown.ends_with("...")) << shown;
  }
}

TEST_F(WallsAndLevelsTest, PiesOfHugeValuesHaveTheirSlices) {
  for (const char* element : {"pieChart", "pie3DChart", "doughnutChart"}) {
    const Drawing drawing =
        Draw(PlotXml("<c:" + S(element) + ">" + SeriesXml(0, {1.5e308, 1.5e308}) + "</c:" + element + ">"));
    const auto slices = BoxesOf(drawing, Role::kSlice);
    ASSERT_EQ(slices.size(), 2u) << element;
    EXPECT_NEAR(slices[0].left, slices[1].Right(), 1e-6) << element;
    EXPECT_NEAR(slices[0].width, slices[1].width, 1e-6) << element;
  }
}

}  // namespace
}  // namespace plotsmith

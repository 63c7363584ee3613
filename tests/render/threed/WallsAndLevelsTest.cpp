#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;

class WallsAndLevelsTest : public DrawingTest {
 protected:
  Drawing DrawColumns(const S& series, bool lying = false, const S& before = "") {
    const S chart =
        "<c:autoTitleDeleted val=\"1\"/><c:view3D><c:rotX val=\"15\"/><c:rotY val=\"20\"/><c:rAngAx "
        "val=\"1\"/></c:view3D><c:plotArea>" +
        GroupXml("bar3DChart", S("<c:barDir val=\"") + (lying ? "bar" : "col") + "\"/>", series) +
        AxesXml("", "", lying) + "</c:plotArea>";
    S part = ChartPartXml(chart);
    part.insert(part.find("<c:chart>"), before);
    return DrawPart(part);
  }
};

TEST_F(WallsAndLevelsTest, WallsOfDarkStylesAreFilled) {
  struct {
    int style;
    S fill;
  } const kCases[] = {{2, ""}, {34, "#E7E7E7"}, {35, "#E9EDF4"}, {42, "#3F3F3F"}};
  for (const auto& test : kCases) {
    const Drawing drawing =
        DrawColumns(SeriesXml(0, {1, 2}), false, "<c:style val=\"" + std::to_string(test.style) + "\"/>");
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
  const S series = SeriesXml(0, {1, 2, 3});
  for (const S orientation : {"minMax", "maxMin"}) {
    const S axis = "<c:scaling><c:orientation val=\"" + orientation + "\"/></c:scaling><c:majorGridlines/>";
    const Drawing drawing = Draw(
        "<c:autoTitleDeleted val=\"1\"/><c:view3D><c:rotX val=\"15\"/><c:rotY val=\"20\"/><c:rAngAx "
        "val=\"1\"/></c:view3D><c:plotArea>" +
        GroupXml("bar3DChart", "<c:barDir val=\"col\"/>", series) + AxesXml(axis) + "</c:plotArea>");
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
    const S turned =
        "<c:txPr><a:bodyPr rot=\"" + rotation + "\"/><a:p><a:pPr><a:defRPr/></a:pPr></a:p></c:txPr>";
    const Drawing drawing = Draw(
        PlotXml(ColumnsXml(SeriesXml(0, Numbers(12, 1), "", "", CategoriesXml(texts))) + AxesXml(turned)), "",
        384, 400);
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

#include "tests/render/DrawingTest.h"
#include "xlsx/Worksheet.h"

namespace plotsmith {
namespace {

using namespace test;
using render::Drawing;
using render::Item;
using render::PathItem;
using render::PathStep;
using render::Rect;
using render::Role;
using S = std::string;

class FamiliesTest : public DrawingTest {};

TEST_F(FamiliesTest, PiesAndDoughnutsHaveNoPlotAreaOfTheirOwn) {
  struct {
    S plot, fill;
  } cases[] = {
      {"<c:pieChart>" + SeriesXml(0, {1, 2}) + "</c:pieChart>", "none"},
      {"<c:doughnutChart>" + SeriesXml(0, {1, 2}) + "</c:doughnutChart>", "none"},
      {"<c:pieChart>" + SeriesXml(0, {1, 2}) +
           "</c:pieChart><c:spPr><a:solidFill><a:srgbClr val=\"FFFF99\"/></a:solidFill></c:spPr>",
       "#FFFF99"},
      {"<c:pieChart>" + SeriesXml(0, {1, 2}) + "</c:pieChart>" +
           GroupXml("barChart", "", SeriesXml(1, {1, 2})) + AxesXml(),
       "#FFFFFF"},
  };
  for (const auto& test : cases) {
    EXPECT_EQ(FillOf(ItemsOf(Draw(PlotXml(test.plot)), Role::kPlotArea)[0]), test.fill) << test.plot;
  }
}

TEST_F(FamiliesTest, PointsAreDrawnAlongAnAxisOfCategoriesAsWell) {
  const S points =
      "<c:ser><c:idx val=\"1\"/><c:order val=\"1\"/><c:marker><c:symbol val=\"square\"/></c:marker>"
      "<c:xVal><c:numLit><c:ptCount val=\"2\"/><c:pt idx=\"0\"><c:v>1</c:v></c:pt><c:pt idx=\"1\"><c:v>2.5"
      "</c:v></c:pt></c:numLit></c:xVal><c:yVal><c:numLit><c:ptCount val=\"2\"/><c:pt idx=\"0\"><c:v>4"
      "</c:v></c:pt><c:pt idx=\"1\"><c:v>5</c:v></c:pt></c:numLit></c:yVal></c:ser>";
  const S scatter = GroupXml("scatterChart", "<c:scatterStyle val=\"lineMarker\"/>", points);
  const S columns = GroupXml("barChart", "", SeriesXml(0, {1, 2, 3}));
  struct {
    const char* what;
    S groups;
    double first, second;  // As shares of the plot area's width.
    std::vector<S> labels;
  } cases[] = {
      {"alone", scatter, 1.0 / 3, 2.5 / 3, {"0", "0.5", "1", "1.5", "2", "2.5", "3"}},
      {"beside columns", columns + scatter, 1.0 / 6, 2.0 / 3, {"1", "2", "3"}},
  };
  for (const auto& test : cases) {
    const Drawing drawing = Draw(PlotXml(test.groups + AxesXml()));
    const Rect plot = BoxOf(drawing, Role::kPlotArea);
    const auto markers = BoxesOf(drawing, Role::kMarker);
    ASSERT_EQ(markers.size(), 2u) << test.what;
    EXPECT_NEAR(markers[0].Center().x, plot.left + plot.width * test.first, 1e-6) << test.what;
    EXPECT_NEAR(markers[1].Center().x, plot.left + plot.width * test.second, 1e-6) << test.what;
    EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 1), test.labels) << test.what;
  }
}

/// Returns the heights at which the line of a series passes its points, on an axis from 0 to 10. A part after
/// a gap begins with NaN.
std::vector<double> HeightsOf(const Drawing& drawing, int series) {
  const Rect plot = BoxOf(drawing, Role::kPlotArea);
  std::vector<double> heights;
  for (const Item& line : ItemsOf(drawing, Role::kLine, series)) {
    for (const PathStep& step : std::get<PathItem>(line.content).path.Steps()) {
      if (step.kind == PathStep::Kind::kMove && !heights.empty()) heights.push_back(kNoValue);
      heights.push_back(std::round((plot.Bottom() - step.to.y) / plot.height * 1e6) / 1e5);
    }
  }
  return heights;
}

TEST_F(FamiliesTest, BlanksOfLinesAreGapsUnlessTheFileSaysOtherwise) {
  constexpr double kGap = kNoValue;
  struct {
    const char *grouping, *behind;
    std::vector<double> upper;  // The positions of the second series.
  } cases[] = {
      {"standard", "", {1, 1, kGap, 1, 1}},
      {"standard", "<c:dispBlanksAs val=\"gap\"/>", {1, 1, kGap, 1, 1}},
      {"standard", "<c:dispBlanksAs val=\"zero\"/>", {1, 1, 0, 1, 1}},
      {"standard", "<c:dispBlanksAs val=\"span\"/>", {1, 1, 1, 1}},
      {"stacked", "", {4, 5, 5, 6, 7}},
      {"stacked", "<c:dispBlanksAs val=\"zero\"/>", {4, 5, 5, 6, 7}},
      {"percentStacked", "", {10, 10, 10, 10, 10}},
  };
  const S value = "<c:scaling><c:max val=\"10\"/><c:min val=\"0\"/></c:scaling>";
  const S shares = "<c:scaling><c:max val=\"1\"/><c:min val=\"0\"/></c:scaling>";
  for (const auto& test : cases) {
    const Drawing drawing =
        Draw(PlotXml(GroupXml("lineChart", "<c:grouping val=\"" + S(test.grouping) + "\"/>",
                              SeriesXml(0, {3, 4, 5, 5, 6}) + SeriesXml(1, {1, 1, kNoValue, 1, 1})) +
                         AxesXml("", test.grouping == S("percentStacked") ? shares : value),
                     test.behind));
    const auto heights = HeightsOf(drawing, 2);
    ASSERT_EQ(heights.size(), test.upper.size()) << test.grouping << test.behind;
    for (std::size_t i = 0; i < heights.size(); ++i) {
      if (std::isnan(test.upper[i])) {
        EXPECT_TRUE(std::isnan(heights[i])) << test.grouping << test.behind << i;
      } else {
        EXPECT_NEAR(heights[i], test.upper[i], 1e-4) << test.grouping << test.behind << i;
      }
    }
  }
}

TEST_F(FamiliesTest, ValuesWithoutACacheAreThoseOfTheCells) {
  const S series =
      "<c:ser><c:idx val=\"0\"/><c:order "
      "val=\"0\"/><c:cat><c:strRef><c:f>Sheet1!$A$2:$A$4</c:f></c:strRef></c:cat>"
      "<c:val><c:numRef><c:f>Sheet1!$C$2:$C$4</c:f></c:numRef></c:val></c:ser>";
  const Drawing drawing = Draw(PlotXml(
      GroupXml("barChart", "<c:barDir val=\"col\"/><c:grouping val=\"clustered\"/>", series) + AxesXml()));
  const auto sheet = Book().FindWorksheet("Sheet1");
  const auto bars = BoxesOf(drawing, Role::kBar);
  ASSERT_EQ(bars.size(), 3u);
  const auto value = [&](int row) { return sheet->Stored(row, 3).number; };
  for (int i = 0; i < 3; ++i) {
    const auto& bar = bars[static_cast<std::size_t>(i)];
    EXPECT_NEAR(bar.height / bars[0].height, value(i + 2) / value(2), 1e-9) << i;
  }
  std::string scratch;
  EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 1)[0], sheet->CellTextAt(2, 1, scratch));
}

TEST_F(FamiliesTest, NamesWithoutACacheAreThoseOfTheCells) {
  const auto from = [](const char* element, const char* kind, const S& cells) {
    return "<c:" + S(element) + "><c:" + kind + "><c:f>Sheet1!" + cells + "</c:f></c:" + kind +
           "></c:" + element + ">";
  };
  const auto series = [&](const char* index, const S& name, const S& values) {
    return "<c:ser><c:idx val=\"" + S(index) + "\"/><c:order val=\"" + index + "\"/>" + name +
           from("cat", "strRef", "$A$2:$A$4") + from("val", "numRef", values) + "</c:ser>";
  };
  const S cached =
      "<c:tx><c:strRef><c:f>Sheet1!$C$1</c:f><c:strCache><c:ptCount val=\"1\"/><c:pt idx=\"0\"><c:v>"
      "Held</c:v></c:pt></c:strCache></c:strRef></c:tx>";
  const S columns = "<c:barDir val=\"col\"/><c:grouping val=\"clustered\"/>";
  // Draw a chart to make the cells that the cases use.
  Draw(PlotXml(""));
  const auto sheet = Book().FindWorksheet("Sheet1");
  std::string scratch;
  const auto text = [&](int row, int column) { return S(sheet->CellTextAt(row, column, scratch)); };
  ASSERT_NE(text(1, 2), "");
  const std::vector<S> names = {text(1, 2), text(1, 3)}, categories = {text(2, 1), text(3, 1), text(4, 1)};
  struct {
    const char* what;
    S groups;
    std::vector<S> legend;
  } cases[] = {
      {"one cell each",
       GroupXml("barChart", columns,
                series("0", from("tx", "strRef", "$B$1"), "$B$2:$B$4") +
                    series("1", from("tx", "strRef", "$C$1"), "$C$2:$C$4")) +
           AxesXml(),
       names},
      {"two cells",
       GroupXml("barChart", columns, series("0", from("tx", "strRef", "$B$1:$C$1"), "$B$2:$B$4")) + AxesXml(),
       {names[0] + " " + names[1]}},
      {"a cache", GroupXml("barChart", columns, series("0", cached, "$C$2:$C$4")) + AxesXml(), {"Held"}},
      {"no name", GroupXml("barChart", columns, series("0", "", "$C$2:$C$4")) + AxesXml(), {"Series1"}},
      {"a pie", "<c:pieChart>" + series("0", from("tx", "strRef", "$C$1"), "$C$2:$C$4") + "</c:pieChart>",
       categories},
  };
  for (const auto& test : cases) {
    const Drawing drawing = Draw(PlotXml(test.groups, "<c:legend><c:legendPos val=\"r\"/></c:legend>"));
    EXPECT_EQ(TextsOf(drawing, Role::kLegendEntry), test.legend) << test.what;
  }
}

TEST_F(FamiliesTest, SeriesOfTwoAxesFollowTheirOwnScale) {
  S second =
      AxesXml("", "<c:scaling><c:max val=\"1\"/><c:min val=\"0\"/></c:scaling><c:crosses val=\"max\"/>");
  const auto renumber = [](S xml) {
    for (const auto& [from, to] : {std::pair{"\"1\"/>", "\"11\"/>"}, {"\"2\"/>", "\"12\"/>"}}) {
      for (const char* name : {"axId val=", "crossAx val="}) {
        const S wanted = S(name) + from;
        for (std::size_t at; (at = xml.find(wanted)) != S::npos;)
          xml.replace(at, wanted.size(), S(name) + to);
      }
    }
    return xml;
  };
  second = renumber(second);
  second.replace(second.find("<c:delete val=\"0\"/>"), 19, "<c:delete val=\"1\"/>");
  const Drawing drawing = Draw(
      PlotXml(GroupXml("barChart", "<c:barDir val=\"col\"/><c:grouping val=\"clustered\"/>",
                       SeriesXml(0, {50, 100})) +
              renumber(GroupXml("lineChart", "<c:grouping val=\"standard\"/>",
                                SeriesXml(1, {0.5, 1}, "<c:marker><c:symbol val=\"dash\"/></c:marker>"))) +
              AxesXml("", "<c:scaling><c:max val=\"100\"/><c:min val=\"0\"/></c:scaling>") + second));
  const auto bars = BoxesOf(drawing, Role::kBar), markers = BoxesOf(drawing, Role::kMarker);
  ASSERT_EQ(markers.size(), 2u);
  for (std::size_t i = 0; i < 2; ++i) EXPECT_NEAR(markers[i].Center().y, bars[i].top, 1e-6) << i;
  const Rect plot = BoxOf(drawing, Role::kPlotArea);
  EXPECT_LT(BoxOf(drawing, Role::kTickLabel, 2).Right(), plot.left);
  EXPECT_GT(BoxOf(drawing, Role::kTickLabel, 4).left, plot.Right());
  EXPECT_EQ(DrawingComplaints(drawing), "");
}

}  // namespace
}  // namespace plotsmith

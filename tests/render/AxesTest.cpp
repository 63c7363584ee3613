#include <set>

#include "tests/render/DrawingTest.h"
#include "xlsx/package/Xml.h"

namespace plotsmith {
namespace {

using namespace test;
using render::Drawing;
using render::Rect;
using render::Role;
using S = std::string;
using Texts = std::vector<S>;

class AxesTest : public DrawingTest {
 protected:
  /// Draws a clustered column or bar chart with one series.
  Drawing DrawWith(const std::vector<double>& values, const S& value, const S& category = "",
                   const Texts& names = {}, bool horizontal = false, double width = 384) {
    const S first =
        S("<c:barDir val=\"") + (horizontal ? "bar" : "col") + "\"/><c:grouping val=\"clustered\"/>";
    const S categories = names.empty() ? "" : CategoriesXml(names);
    return Draw(PlotXml(GroupXml("barChart", first, SeriesXml(0, values, "", "", categories)) +
                        AxesXml(category, value, horizontal)),
                "", width);
  }
};

TEST_F(AxesTest, AxesOfValuesShowTheirMajorUnits) {
  struct {
    const char* what;
    std::vector<double> values;
    S axis;
    Texts labels;
  } cases[] = {
      {"a plain axis", {7, 42, 18}, "", {"0", "5", "10", "15", "20", "25", "30", "35", "40", "45"}},
      {"limits and a unit by hand",
       {7, 42},
       "<c:scaling><c:max val=\"60\"/><c:min val=\"-20\"/></c:scaling><c:majorUnit val=\"40\"/>",
       {"-20", "20", "60"}},
      {"a number format",
       {0.25, 1},
       "<c:scaling><c:max val=\"1\"/><c:min val=\"0\"/></c:scaling><c:numFmt formatCode=\"0.0%\" "
       "sourceLinked=\"0\"/><c:majorUnit val=\"0.5\"/>",
       {"0.0%", "50.0%", "100.0%"}},
      {"powers of ten",
       {3, 1200},
       "<c:scaling><c:logBase val=\"10\"/></c:scaling>",
       {"1", "10", "100", "1000", "10000"}},
      {"thousands",
       {1000, 4000},
       "<c:majorUnit val=\"2000\"/><c:dispUnits><c:builtInUnit val=\"thousands\"/></c:dispUnits>",
       {"0", "2", "4", "6"}},
      {"a unit too small for its labels",
       {1000},
       "<c:majorUnit val=\"0\"/>",
       {"0", "200", "400", "600", "800", "1000", "1200"}},
  };
  for (const auto& test : cases) {
    const Drawing drawing = DrawWith(test.values, test.axis);
    EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 2), test.labels) << test.what;
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.what;
  }
}

TEST_F(AxesTest, StacksAreScaledByTheirEnds) {
  struct {
    const char *what, *element, *first;
    std::vector<double> one, two;
    Texts labels;
  } cases[] = {
      {"shares of bars on both sides",
       "barChart",
       "<c:barDir val=\"col\"/><c:grouping val=\"percentStacked\"/>",
       {3, 1},
       {-1, 1},
       {"-100%", "-50%", "0%", "50%", "100%"}},
      {"shares of areas on both sides",
       "areaChart",
       "<c:grouping val=\"percentStacked\"/>",
       {3, 1},
       {-1, 1},
       {"-100%", "-50%", "0%", "50%", "100%"}},
      {"shares below zero",
       "barChart",
       "<c:barDir val=\"col\"/><c:grouping val=\"percentStacked\"/>",
       {-3, -1},
       {-1, -1},
       {"-100%", "-50%", "0%"}},
      {"bars below zero go down",
       "barChart",
       "<c:barDir val=\"col\"/><c:grouping val=\"stacked\"/>",
       {30, 10},
       {-10, 0},
       {"-20", "0", "20", "40"}},
      {"areas are sums", "areaChart", "<c:grouping val=\"stacked\"/>", {30, 10}, {-10, 0}, {"0", "20", "40"}},
      {"lines are sums", "lineChart", "<c:grouping val=\"stacked\"/>", {30, 10}, {-10, 0}, {"0", "20", "40"}},
  };
  for (const auto& test : cases) {
    const S unit = S(test.first).find("percent") == S::npos ? "20" : "0.5";
    const Drawing drawing =
        Draw(PlotXml(GroupXml(test.element, test.first, SeriesXml(0, test.one) + SeriesXml(1, test.two)) +
                     AxesXml("", "<c:majorUnit val=\"" + unit + "\"/>")));
    EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 2), test.labels) << test.what;
  }
}

/// c:cat of several levels; each point is its index with its text, as 0=North.
S LevelsXml(int count, const std::vector<std::vector<std::pair<int, S>>>& levels) {
  S xml = "<c:cat><c:multiLvlStrRef><c:f>Sheet1!$A$1:$B$4</c:f><c:multiLvlStrCache><c:ptCount val=\"" +
          std::to_string(count) + "\"/>";
  for (const auto& level : levels) {
    xml += "<c:lvl>";
    for (const auto& [index, text] : level) {
      xml += "<c:pt idx=\"" + std::to_string(index) + "\"><c:v>" + text + "</c:v></c:pt>";
    }
    xml += "</c:lvl>";
  }
  return xml + "</c:multiLvlStrCache></c:multiLvlStrRef></c:cat>";
}

TEST_F(AxesTest, TextsOfLevelsAreRepeatedWithinBounds) {
  for (const auto& [length, prefix] : {std::pair<std::size_t, S>(10, S(10, 'x') + " "), {20'000, ""}}) {
    const S levels = LevelsXml(1000, {{{0, "first"}}, {{0, S(length, 'x')}}});
    const Drawing drawing =
        Draw(PlotXml(GroupXml("barChart", "<c:barDir val=\"bar\"/>", SeriesXml(0, {1}, "", "", levels)) +
                     AxesXml("<c:noMultiLvlLbl val=\"1\"/>", "", true)),
             "", 2000, 20'000);
    EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 1).front(), prefix + "first") << length;
  }
}

TEST_F(AxesTest, AxesAtTheEndOfAllNumbersAreDrawn) {
  const Drawing drawing = DrawWith({1e308, -1e308, 1.7e308, 1e-308}, "<c:majorGridlines/>");
  EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 2), (Texts{"-8E+307", "-4E+307", "0", "4E+307", "8E+307"}));
  const Rect plot = BoxOf(drawing, Role::kPlotArea);
  const auto bars = BoxesOf(drawing, Role::kBar);
  ASSERT_EQ(bars.size(), 4u);
  EXPECT_LT(bars[0].top, plot.top);
  EXPECT_GT(bars[1].Bottom(), plot.Bottom());
  EXPECT_LT(bars[2].top, plot.top);
  EXPECT_NEAR(bars[3].height, 0, 1e-9);
  EXPECT_EQ(DrawingComplaints(drawing), "");
}

}  // namespace
}  // namespace plotsmith

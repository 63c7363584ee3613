#include <numbers>

#include "runtime/Strings.h"
#include "tests/render/DrawingTest.h"
#include "xlsx/Worksheet.h"
#include "xlsx/package/Xml.h"

namespace plotsmith {
namespace {

using namespace test;

class FamiliesTest : public DrawingTest {
 protected:
  Drawing DrawPie(const Numbers& values, const S& more = "", const S& last = "", const S& behind = "") {
    return Draw(
        PlotXml("<c:pieChart><c:varyColors val=\"1\"/>" + SeriesXml(0, values, more) + last + "</c:pieChart>",
                behind));
  }
  /// Draws a bubble chart with one series. Each bubble is X, Y and size.
  Drawing DrawBubbles(const std::vector<std::array<double, 3>>& bubbles, const S& last) {
    Numbers x, y, sizes;
    for (const auto& bubble : bubbles) {
      x.push_back(bubble[0]);
      y.push_back(bubble[1]);
      sizes.push_back(bubble[2]);
    }
    const S series = PointsXml(0, x, y, "", NumbersXml("bubbleSize", sizes));
    return Draw(PlotXml(GroupXml("bubbleChart", "", series, last) + ValueAxesXml()));
  }
};

/// Returns the angles in degrees at which a slice begins and ends, clockwise from twelve o'clock around its
/// tip.
std::pair<double, double> AnglesOf(const Item& slice) {
  const auto& steps = std::get<PathItem>(slice.content).path.Steps();
  const Point center = steps[0].to;
  const auto angle = [&](Point p) {
    const double degrees = std::atan2(p.x - center.x, center.y - p.y) * 180 / std::numbers::pi;
    return degrees < -1e-9 ? degrees + 360 : degrees;
  };
  return {angle(steps[1].to), angle(steps[steps.size() - 2].to)};
}

TEST_F(FamiliesTest, SlicesShareTheCircleByTheirValues) {
  const Numbers values = {30, 10, -20, 60};  // A pie uses the absolute values.
  const Drawing drawing = DrawPie(values, "", "<c:firstSliceAng val=\"90\"/>");
  const auto slices = ItemsOf(drawing, Role::kSlice);
  ASSERT_EQ(slices.size(), 4u);
  double at = 90, sum = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    const auto [from, to] = AnglesOf(slices[i]);
    EXPECT_NEAR(std::fmod(at, 360), from, 1e-6) << i;
    const double sweep = std::fmod(to - from + 360, 360);
    EXPECT_NEAR(sweep, 360 * std::abs(values[i]) / 120, 1e-6) << i;
    at += sweep;
    sum += sweep;
  }
  EXPECT_NEAR(sum, 360, 1e-6);
  EXPECT_EQ(FillOf(slices[0]), "#4F81BD");
  EXPECT_EQ(FillOf(slices[1]), "#C0504D");
}

TEST_F(FamiliesTest, ExplodedSlicesMoveOutAlongTheirMiddle) {
  const Drawing whole = DrawPie({1, 1});
  const Drawing exploded = DrawPie({1, 1}, "<c:explosion val=\"25\"/>");
  const auto before = BoxesOf(whole, Role::kSlice), after = BoxesOf(exploded, Role::kSlice);
  const double radius = after[0].width;
  EXPECT_NEAR(before[0].left, before[1].Right(), 1e-6);
  EXPECT_NEAR(after[0].left - after[1].Right(), 2 * 0.25 * radius, 1e-6);
  EXPECT_NEAR(before[0].width, radius * 1.25, 1e-6);  // The moved slices must stay in the same area.
}

TEST_F(FamiliesTest, OnlyTheOutermostRingOfADoughnutExplodes) {
  const S explosion = "<c:explosion val=\"25\"/>";
  struct {
    const char* what;
    S first, second;
    double width, moved;  // The width of the outer ring as a share of the plot area, and the distance of its
                          // halves in radii.
  } cases[] = {{"none", "", "", 1, 0}, {"inner", explosion, "", 1, 0}, {"outer", "", explosion, 0.8, 0.25}};
  for (const auto& test : cases) {
    const Drawing drawing =
        Draw(PlotXml("<c:doughnutChart>" + SeriesXml(0, {1, 1}, test.first) +
                     SeriesXml(1, {1, 1}, test.second) + "<c:holeSize val=\"50\"/></c:doughnutChart>"));
    const Rect plot = BoxOf(drawing, Role::kPlotArea);
    const auto inner = BoxesOf(drawing, Role::kSlice, 1), outer = BoxesOf(drawing, Role::kSlice, 2);
    const double free = std::min(plot.width, plot.height);
    EXPECT_NEAR(outer[0].height, free * test.width, 1e-6) << test.what;
    EXPECT_NEAR(inner[0].height, free * test.width * 0.75, 1e-6) << test.what;
    EXPECT_NEAR(inner[0].left, inner[1].Right(), 1e-6) << test.what;
    EXPECT_NEAR(outer[0].left - outer[1].Right(), outer[0].height * test.moved, 1e-6) << test.what;
  }
}

TEST_F(FamiliesTest, PiesAndDoughnutsHaveNoPlotAreaOfTheirOwn) {
  const S pie = "<c:pieChart>" + SeriesXml(0, {1, 2}) + "</c:pieChart>";
  struct {
    S plot, fill;
  } cases[] = {
      {pie, "none"},
      {"<c:doughnutChart>" + SeriesXml(0, {1, 2}) + "</c:doughnutChart>", "none"},
      {pie + LookXml(SolidXml("FFFF99")), "#FFFF99"},
      {pie + GroupXml("barChart", "", SeriesXml(1, {1, 2})) + AxesXml(), "#FFFFFF"},
  };
  for (const auto& test : cases) {
    EXPECT_EQ(FillOf(ItemsOf(Draw(PlotXml(test.plot)), Role::kPlotArea)[0]), test.fill) << test.plot;
  }
}

TEST_F(FamiliesTest, PointsAreDrawnAlongAnAxisOfCategoriesAsWell) {
  const S points = PointsXml(1, {1, 2.5}, {4, 5}, "<c:marker><c:symbol val=\"square\"/></c:marker>");
  const S scatter = GroupXml("scatterChart", "<c:scatterStyle val=\"lineMarker\"/>", points);
  const S columns = GroupXml("barChart", "", SeriesXml(0, {1, 2, 3}));
  struct {
    const char* what;
    S groups;
    double first, second;  // As shares of the plot area's width.
    Texts labels;
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

TEST_F(FamiliesTest, BubblesShowTheirSizeAsAreaOrAsWidth) {
  const std::vector<std::array<double, 3>> bubbles = {{1, 1, 100}, {2, 3, 25}, {3, 2, -50}, {4, 4, 0}};
  struct {
    const char* last;
    Numbers shares;  // As shares of the largest width.
  } cases[] = {
      {"", {1, 0.5}},
      {"<c:sizeRepresents val=\"w\"/>", {1, 0.25}},
      {"<c:bubbleScale val=\"200\"/>", {2, 1}},
      {"<c:showNegBubbles val=\"1\"/>", {1, 0.5, std::sqrt(0.5)}},
  };
  for (const auto& test : cases) {
    const Drawing drawing = DrawBubbles(bubbles, test.last);
    const auto boxes = BoxesOf(drawing, Role::kBubble);
    const Rect plot = BoxOf(drawing, Role::kPlotArea);
    ASSERT_EQ(boxes.size(), test.shares.size()) << test.last;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
      EXPECT_NEAR(boxes[i].width, std::min(plot.width, plot.height) / 4 * test.shares[i], 1e-6)
          << test.last << i;
      EXPECT_NEAR(boxes[i].width, boxes[i].height, 1e-9);
    }
  }
}

TEST_F(FamiliesTest, AreasGoThroughTheirValuesAndThoseBelow) {
  const Drawing areas = Draw(PlotXml(
      GroupXml("areaChart", "<c:grouping val=\"stacked\"/>", SeriesXml(0, {2, 4}) + SeriesXml(1, {3, 6})) +
      AxesXml("", ScalingXml("0", "10") + "<c:crossBetween val=\"midCat\"/>")));
  const Rect inner = BoxOf(areas, Role::kPlotArea);
  const auto steps = std::get<PathItem>(ItemsOf(areas, Role::kArea, 2)[0].content).path.Steps();
  const double expected[][2] = {{0, 5}, {1, 10}, {1, 4}, {0, 2}};
  ASSERT_EQ(steps.size(), 5u);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_NEAR(steps[i].to.x, inner.left + inner.width * expected[i][0], 1e-6) << i;
    EXPECT_NEAR(steps[i].to.y, inner.Bottom() - inner.height * expected[i][1] / 10, 1e-6) << i;
  }
}

/// Returns the heights at which the line of a series passes its points, on an axis from 0 to 10. A part after
/// a gap begins with NaN.
Numbers HeightsOf(const Drawing& drawing, int series) {
  const Rect plot = BoxOf(drawing, Role::kPlotArea);
  Numbers heights;
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
  const Numbers inside = {1, 1, kNoValue, 1, 1}, ends = {kNoValue, 2, kNoValue, 4, kNoValue};
  const S ownLook = "<c:dPt><c:idx val=\"3\"/><c:spPr><a:ln w=\"12700\"/></c:spPr></c:dPt>";
  struct {
    const char *grouping, *blanks;
    Numbers values;
    S look;
    Numbers heights;  // of the second series
  } cases[] = {
      {"standard", "", inside, "", {1, 1, kGap, 1, 1}},
      {"standard", "gap", inside, "", {1, 1, kGap, 1, 1}},
      {"standard", "zero", inside, "", {1, 1, 0, 1, 1}},
      {"standard", "span", inside, "", {1, 1, 1, 1}},
      {"stacked", "", inside, "", {4, 5, 5, 6, 7}},
      {"stacked", "zero", inside, "", {4, 5, 5, 6, 7}},
      {"percentStacked", "", inside, "", {10, 10, 10, 10, 10}},
      {"standard", "gap", ends, "", {}},
      {"standard", "span", ends, "", {2, 4}},
      {"standard", "zero", ends, "", {0, 2, 0, 4, 0}},
      {"standard", "gap", ends, ownLook, {}},
      {"standard", "span", ends, ownLook, {2, 4}},
      {"standard", "zero", ends, ownLook, {0, 2, 0, kGap, 0, 4, kGap, 4, 0}},
  };
  for (const auto& test : cases) {
    const S blanks = S(test.blanks).empty() ? "" : "<c:dispBlanksAs val=\"" + S(test.blanks) + "\"/>";
    const S series = SeriesXml(0, {3, 4, 5, 5, 6}) + SeriesXml(1, test.values, test.look);
    const S value = ScalingXml("0", test.grouping == S("percentStacked") ? "1" : "10");
    const Drawing drawing = Draw(PlotXml(LinesXml(series, "", test.grouping) + AxesXml("", value), blanks));
    Texts expected, found;
    for (const double height : test.heights) expected.push_back(xlsx::xml::Number(height));
    for (const double height : HeightsOf(drawing, 2)) found.push_back(xlsx::xml::Number(height + 0.0));
    EXPECT_EQ(found, expected) << test.grouping << blanks << test.look;
  }
}

/// Returns the extension that tells whether #N/A is drawn as a blank cell.
S UnavailableXml(const S& blank) {
  return "<c:extLst><c:ext uri=\"{56B9EC1D-385E-4148-901F-78D8002777C0}\" "
         "xmlns:c16r3=\"http://schemas.microsoft.com/office/drawing/2017/03/chart\">"
         "<c16r3:dataDisplayOptions16><c16r3:dispNaAsBlank val=\"" +
         blank + "\"/></c16r3:dataDisplayOptions16></c:ext></c:extLst>";
}

TEST_F(FamiliesTest, LinesPassOverUnavailableValuesUnlessTheFileSaysOtherwise) {
  constexpr double kGap = kNoValue;
  const S gap = "<c:dispBlanksAs val=\"gap\"/>", zero = "<c:dispBlanksAs val=\"zero\"/>";
  const Numbers places = {1, 2, 3, 4, 5}, values = {1, 2, 77, 4, 5};
  const S line = LinesXml(SeriesXml(0, values)) + AxesXml("", ScalingXml("0", "10"));
  const S scatter =
      GroupXml("scatterChart", "", PointsXml(0, places, values)) + ValueAxesXml("", ScalingXml("0", "10"));
  const S ownLook = "<c:dPt><c:idx val=\"4\"/><c:spPr><a:ln w=\"12700\"/></c:spPr></c:dPt>";
  const S segments = LinesXml(SeriesXml(0, values, ownLook)) + AxesXml("", ScalingXml("0", "10"));
  const struct {
    S chart, text, behind;
    Numbers heights;
  } cases[] = {
      {line, "#N/A", gap, {1, 2, 4, 5}},
      {line, "#N/A", zero, {1, 2, 4, 5}},
      {line, "#N/A", gap + UnavailableXml("0"), {1, 2, 4, 5}},
      {line, "#N/A", gap + UnavailableXml("1"), {1, 2, kGap, 4, 5}},
      {line, "#N/A", zero + UnavailableXml("1"), {1, 2, 0, 4, 5}},
      {line, "#DIV/0!", gap, {1, 2, kGap, 4, 5}},
      {segments, "#N/A", gap, {1, 2, 4, kGap, 4, 5}},
      {scatter, "#N/A", gap, {1, 2, 4, 5}},
      {scatter, "#N/A", gap + UnavailableXml("1"), {1, 2, kGap, 4, 5}},
      {scatter, "#DIV/0!", gap, {1, 2, kGap, 4, 5}},
  };
  for (const auto& test : cases) {
    const S chart =
        runtime::Replace(PlotXml(test.chart, test.behind), "<c:v>77</c:v>", "<c:v>" + test.text + "</c:v>");
    Texts expected, found;
    for (const double height : test.heights) expected.push_back(xlsx::xml::Number(height));
    for (const double height : HeightsOf(Draw(chart), 1)) found.push_back(xlsx::xml::Number(height + 0.0));
    EXPECT_EQ(found, expected) << chart;
  }
}

TEST_F(FamiliesTest, AreasPassOverUnavailableValues) {
  const struct {
    const char *grouping, *text;
    Numbers heights;  // of the outline, from the first point to the last one and back
  } cases[] = {
      {"standard", "#N/A", {1, 2, 4, 5, 0, 0, 0, 0}},
      {"standard", "#DIV/0!", {1, 2, 0, 4, 5, 0, 0, 0, 0, 0}},
      {"stacked", "#N/A", {1, 2, 0, 4, 5, 0, 0, 0, 0, 0}},
  };
  for (const auto& test : cases) {
    const S series =
        runtime::Replace(SeriesXml(0, {1, 2, 77, 4, 5}), "<c:v>77<", S("<c:v>") + test.text + "<");
    const Drawing drawing =
        Draw(PlotXml(GroupXml("areaChart", S("<c:grouping val=\"") + test.grouping + "\"/>", series) +
                     AxesXml("", ScalingXml("0", "10"))));
    const Rect plot = BoxOf(drawing, Role::kPlotArea);
    Numbers heights;
    const auto areas = ItemsOf(drawing, Role::kArea);
    for (const PathStep& step : std::get<PathItem>(areas[0].content).path.Steps()) {
      if (step.kind == PathStep::Kind::kClose) continue;
      heights.push_back(std::round((plot.Bottom() - step.to.y) / plot.height * 1e6) / 1e5 + 0.0);
    }
    EXPECT_EQ(heights, test.heights) << test.grouping << test.text;
  }
}

TEST_F(FamiliesTest, LinesPassOverUnavailableCells) {
  const S series =
      "<c:ser><c:idx val=\"0\"/><c:order val=\"0\"/><c:val><c:numRef><c:f>Sheet1!$C$2:$C$4</c:f></c:numRef>"
      "</c:val></c:ser>";
  const struct {
    int error;
    std::size_t points;  // of the line
  } cases[] = {{2042, 2}, {2007, 0}};
  for (const auto& test : cases) {
    OpenChart(ChartPartXml(PlotXml(LinesXml(series) + AxesXml(), "<c:dispBlanksAs val=\"gap\"/>")));
    Book().FindWorksheet("Sheet1")->Cells(3, 3)->SetValue(excel::Variant::Error{test.error});
    std::size_t points = 0;
    for (const Item& line : ItemsOf(DrawOpen(), Role::kLine)) {
      points += std::get<PathItem>(line.content).path.Steps().size();
    }
    EXPECT_EQ(points, test.points) << test.error;
  }
}

TEST_F(FamiliesTest, LinesAreInterruptedAtNumbersThatAreNotOnALogarithmicScale) {
  constexpr double kGap = kNoValue;
  const S decades = ScalingXml("1", "10000000000", "<c:logBase val=\"10\"/>");
  const Numbers places = {1, 2, 3, 4, 5}, powers = {10, 100, 1000, 1e4, 1e5};
  const Numbers withZero = {10, 100, 0, 1e4, 1e5}, withNegative = {1, 2, -3, 4, 5};
  const struct {
    const char* what;
    S chart;
    Numbers heights;
  } cases[] = {
      {"values of a line", LinesXml(SeriesXml(0, withZero)) + AxesXml("", decades), {1, 2, kGap, 4, 5}},
      {"Y values",
       GroupXml("scatterChart", "", PointsXml(0, places, withZero)) + ValueAxesXml("", decades),
       {1, 2, kGap, 4, 5}},
      {"X values",
       GroupXml("scatterChart", "", PointsXml(0, withNegative, powers)) + ValueAxesXml(decades, decades),
       {1, 2, kGap, 4, 5}},
      {"X values on a linear scale",
       GroupXml("scatterChart", "", PointsXml(0, withNegative, powers)) + ValueAxesXml("", decades),
       {1, 2, 3, 4, 5}},
  };
  for (const auto& test : cases) {
    Texts expected, found;
    for (const double height : test.heights) expected.push_back(xlsx::xml::Number(height));
    for (const double height : HeightsOf(Draw(PlotXml(test.chart)), 1)) {
      found.push_back(xlsx::xml::Number(height + 0.0));
    }
    EXPECT_EQ(found, expected) << test.what;
  }
}

TEST_F(FamiliesTest, BlanksOfRadarChartsInterruptTheirOutline) {
  // The steps of the outline: moves, lines, and Z if it is closed.
  const std::pair<S, S> cases[] = {{"gap", "MLM"}, {"span", "MLLZ"}, {"zero", "MLLLLZ"}};
  for (const auto& [blanks, steps] : cases) {
    const Drawing drawing = Draw(PlotXml(GroupXml("radarChart", "<c:radarStyle val=\"standard\"/>",
                                                  SeriesXml(0, {kNoValue, 2, 3, kNoValue, 4})) +
                                             AxesXml(),
                                         "<c:dispBlanksAs val=\"" + blanks + "\"/>"));
    S found;
    const auto lines = ItemsOf(drawing, Role::kLine);
    for (const PathStep& step : std::get<PathItem>(lines[0].content).path.Steps()) {
      found += step.kind == PathStep::Kind::kMove ? 'M' : step.kind == PathStep::Kind::kLine ? 'L' : 'Z';
    }
    EXPECT_EQ(found, steps) << blanks;
  }
}

TEST_F(FamiliesTest, PointsWithoutBothOfTheirNumbersAreNotDrawn) {
  for (const char* element : {"scatterChart", "bubbleChart"}) {
    const S sizes = NumbersXml("bubbleSize", {1, 1, 1, 1}),
            labels = "<c:dLbls><c:showVal val=\"1\"/></c:dLbls>";
    const S series = PointsXml(0, {1, kNoValue, 3}, {5, 6, kNoValue, 8}, labels, sizes);
    const Drawing drawing = Draw(PlotXml(GroupXml(element, "", series) + ValueAxesXml()));
    EXPECT_EQ(ItemsOf(drawing, Role::kMarker).size() + ItemsOf(drawing, Role::kBubble).size(), 1u) << element;
    EXPECT_EQ(TextsOf(drawing, Role::kDataLabel), Texts{"5"}) << element;
    EXPECT_EQ(DrawingComplaints(drawing), "") << element;
  }
}

TEST_F(FamiliesTest, LabelsOfPointsShowTheirXValueInTheFormatOfItsAxis) {
  const S labels = "<c:dLbls><c:showVal val=\"1\"/><c:showCatName val=\"1\"/></c:dLbls>";
  for (const char* element : {"scatterChart", "bubbleChart"}) {
    const S series = PointsXml(0, {1.5, 2}, {5, 6}, labels, NumbersXml("bubbleSize", {1, 1}));
    const S axes = ValueAxesXml("<c:numFmt formatCode=\"0.00\" sourceLinked=\"0\"/>");
    const Drawing drawing = Draw(PlotXml(GroupXml(element, "", series) + axes));
    EXPECT_EQ(TextsOf(drawing, Role::kDataLabel), (Texts{"1.50, 5", "2.00, 6"})) << element;
  }
}

TEST_F(FamiliesTest, GroupsWithoutBothAxesAreNotDrawn) {
  const S axes = AxesXml(), category = axes.substr(0, axes.find("<c:valAx>")),
          value = axes.substr(category.size());
  for (const char* element :
       {"barChart", "lineChart", "areaChart", "radarChart", "scatterChart", "bubbleChart"}) {
    for (const S& one : {category, value, S()}) {
      const bool points = S(element) == "scatterChart" || S(element) == "bubbleChart";
      const S series =
          points ? PointsXml(0, {1, 2}, {1, 2}, "", NumbersXml("bubbleSize", {1, 1}))
                 : SeriesXml(0, {1, 2}, "<c:trendline><c:trendlineType val=\"linear\"/></c:trendline>");
      const Drawing drawing = Draw(PlotXml(GroupXml(element, "", series) + one));
      for (const Role role :
           {Role::kBar, Role::kLine, Role::kArea, Role::kMarker, Role::kBubble, Role::kTrendline}) {
        EXPECT_EQ(ItemsOf(drawing, role).size(), 0u) << element << one;
      }
      EXPECT_EQ(DrawingComplaints(drawing), "") << element << one;
    }
  }
}

TEST_F(FamiliesTest, ValuesWithoutACacheAreThoseOfTheCells) {
  const S series =
      "<c:ser><c:idx val=\"0\"/><c:order val=\"0\"/><c:cat><c:strRef><c:f>Sheet1!$A$2:$A$4</c:f>"
      "</c:strRef></c:cat><c:val><c:numRef><c:f>Sheet1!$C$2:$C$4</c:f></c:numRef></c:val></c:ser>";
  const Drawing drawing = Draw(PlotXml(ColumnsXml(series) + AxesXml()));
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
  const Texts names = {text(1, 2), text(1, 3)}, categories = {text(2, 1), text(3, 1), text(4, 1)};
  struct {
    const char* what;
    S groups;
    Texts legend;
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
  const auto renumber = [](S xml) {
    for (const S number : {"1", "2"}) {
      for (const S name : {"axId val=\"", "crossAx val=\""})
        xml = runtime::Replace(xml, name + number + "\"", name + "1" + number + "\"");
    }
    return xml;
  };
  S second = renumber(AxesXml("", ScalingXml("0", "1") + "<c:crosses val=\"max\"/>"));
  second.replace(second.find("<c:delete val=\"0\"/>"), 19, "<c:delete val=\"1\"/>");
  const Drawing drawing = Draw(
      PlotXml(ColumnsXml(SeriesXml(0, {50, 100})) +
              renumber(LinesXml(SeriesXml(1, {0.5, 1}, "<c:marker><c:symbol val=\"dash\"/></c:marker>"))) +
              AxesXml("", ScalingXml("0", "100")) + second));
  const auto bars = BoxesOf(drawing, Role::kBar), markers = BoxesOf(drawing, Role::kMarker);
  ASSERT_EQ(markers.size(), 2u);
  for (std::size_t i = 0; i < 2; ++i) EXPECT_NEAR(markers[i].Center().y, bars[i].top, 1e-6) << i;
  const Rect plot = BoxOf(drawing, Role::kPlotArea);
  EXPECT_LT(BoxOf(drawing, Role::kTickLabel, 2).Right(), plot.left);
  EXPECT_GT(BoxOf(drawing, Role::kTickLabel, 4).left, plot.Right());
  EXPECT_EQ(DrawingComplaints(drawing), "");
}

TEST_F(DrawingTest, RadarChartsLieOnAWebOfTheirScale) {
  const S scale = ScalingXml("0", "10") + "<c:majorGridlines/><c:majorUnit val=\"5\"/>";
  struct {
    const char* style;
    Role role;
    std::size_t markers;
  } cases[] = {{"standard", Role::kLine, 0}, {"marker", Role::kLine, 4}, {"filled", Role::kArea, 0}};
  for (const auto& test : cases) {
    const Drawing drawing =
        Draw(PlotXml(GroupXml("radarChart", S("<c:radarStyle val=\"") + test.style + "\"/>",
                              SeriesXml(0, {10, 5, 2.5, 7.5}, "<c:dLbls><c:showVal val=\"1\"/></c:dLbls>", "",
                                        CategoriesXml({"North", "East", "South", "West"}))) +
                         AxesXml("", scale),
                     "<c:legend/>"));
    EXPECT_EQ(notes_, Texts()) << test.style;
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.style;
    EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 1), (Texts{"North", "East", "South", "West"}));
    EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 2), (Texts{"0", "5", "10"})) << test.style;
    EXPECT_EQ(ItemsOf(drawing, Role::kMarker).size(), test.markers) << test.style;
    const auto webs = BoxesOf(drawing, Role::kGridline);
    ASSERT_EQ(webs.size(), 3u) << test.style;
    const Rect web = webs[2], series = BoxOf(drawing, test.role);
    const double radius = web.width / 2;
    EXPECT_NEAR(web.height / 2, radius, 1e-6) << test.style;
    EXPECT_NEAR(web.Center().y - series.top, radius, 1e-6) << test.style;
    EXPECT_NEAR(series.Right() - web.Center().x, radius * 0.5, 1e-6) << test.style;
    EXPECT_NEAR(series.Bottom() - web.Center().y, radius * 0.25, 1e-6) << test.style;
    EXPECT_NEAR(web.Center().x - series.left, radius * 0.75, 1e-6) << test.style;
    EXPECT_FALSE(Overlap(BoxesOf(drawing, Role::kTickLabel, 1)[1], web)) << test.style;
    const auto labels = BoxesOf(drawing, Role::kDataLabel);
    ASSERT_EQ(labels.size(), 4u) << test.style;
    EXPECT_LE(labels[0].Bottom(), series.top + 0.01) << test.style;
    EXPECT_GE(labels[1].left, series.Right() - 0.01) << test.style;
    EXPECT_GE(labels[2].top, series.Bottom() - 0.01) << test.style;
    EXPECT_LE(labels[3].Right(), series.left + 0.01) << test.style;
  }
}

}  // namespace
}  // namespace plotsmith

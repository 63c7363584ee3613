#include "render/cairo/CairoPainter.h"
#include "render/svg/SvgWriter.h"
#include "tests/render/DrawingTest.h"
#include "xlsx/chart/part/ChartPart.h"
#include "xlsx/chart/rules/LegendLines.h"

namespace plotsmith {
namespace {

using namespace test;

/// Malicious chart parts, which no program writes by mistake.
struct HostileCase {
  const char* name;
  S chart;
};

S ColumnsOn(const S& category, const S& value, const Numbers& values = {1, 2, 3}) {
  return PlotXml(ColumnsXml(SeriesXml(0, values, "<c:dLbls><c:showVal val=\"1\"/></c:dLbls>")) +
                     AxesXml(category, value),
                 "<c:legend/>");
}

S ManySeries(int count) {
  S series;
  for (int i = 0; i < count; ++i) series += SeriesXml(i, {1, 2});
  return series;
}

S Claiming(const S& count) {
  return "<c:ser><c:idx val=\"0\"/><c:order val=\"0\"/><c:val><c:numLit><c:ptCount val=\"" + count +
         "\"/><c:pt idx=\"0\"><c:v>1</c:v></c:pt></c:numLit></c:val></c:ser>";
}

class HostileTest : public DrawingTest, public ::testing::WithParamInterface<HostileCase> {};

TEST_P(HostileTest, IsDrawnInLittleSpace) {
  for (const auto& [width, height] : {std::pair{384.0, 270.0}, {3.0, 2000.0}, {1.0, 1.0}}) {
    const Drawing drawing = Draw(GetParam().chart, "", width, height);
    EXPECT_LT(drawing.items.size(), 400'000u);
    for (const auto& item : drawing.items) {
      const auto box = BoundsOf(item);
      ASSERT_TRUE(std::isfinite(box.left + box.top + box.width + box.height)) << NameOf(item.tag.role);
    }
    EXPECT_FALSE(MakeSvg(drawing).empty());
    EXPECT_FALSE(MakePng(drawing, SharedFonts()).empty());
  }
}

INSTANTIATE_TEST_SUITE_P(
    Parts, HostileTest,
    ::testing::Values(
        HostileCase{"Empty", ""}, HostileCase{"OnlyAGroup", PlotXml("<c:barChart/>")},
        HostileCase{"NoAxes", PlotXml(ColumnsXml(SeriesXml(0, {1, 2})))},
        HostileCase{"NoPoints", ColumnsOn("", "", {})},
        HostileCase{"NoValues", ColumnsOn("", "", {kNoValue, kNoValue})},
        HostileCase{"Huge", ColumnsOn("", "", {1e308, -1e308, 1e-308})},
        HostileCase{"HugeStacked",
                    PlotXml(GroupXml("barChart", "<c:barDir val=\"col\"/><c:grouping val=\"stacked\"/>",
                                     SeriesXml(0, {1e308, 1}) + SeriesXml(1, {1e308, 1})) +
                            AxesXml())},
        HostileCase{"HugePercent", PlotXml(GroupXml("areaChart", "<c:grouping val=\"percentStacked\"/>",
                                                    SeriesXml(0, {1e308, 1}) + SeriesXml(1, {1e308, 1})) +
                                           AxesXml())},
        HostileCase{"HugePie", PlotXml("<c:pieChart>" + SeriesXml(0, {1e308, 1e308}) + "</c:pieChart>")},
        HostileCase{"ZeroPie", PlotXml("<c:pieChart>" + SeriesXml(0, {0, 0}) + "</c:pieChart>")},
        HostileCase{"HugePieOfPie", PlotXml("<c:ofPieChart>" + SeriesXml(0, {1e308, 1e308, 1e308, 1e308}) +
                                            "<c:splitType val=\"percent\"/><c:splitPos val=\"26\"/>"
                                            "<c:secondPieSize val=\"1e300\"/><c:serLines/></c:ofPieChart>")},
        HostileCase{"EmptyPieOfPie", PlotXml("<c:ofPieChart>" + SeriesXml(0, {}) + "</c:ofPieChart>")},
        HostileCase{
            "ClaimedPieOfPie",
            PlotXml("<c:ofPieChart><c:ofPieType val=\"bar\"/>" + Claiming("99999999999") +
                        "<c:gapWidth val=\"-7\"/><c:splitType val=\"pos\"/><c:splitPos val=\"1e300\"/>"
                        "</c:ofPieChart>",
                    "<c:legend/>")},
        HostileCase{"ReversedLimits", ColumnsOn("", ScalingXml("10", "-10"))},
        HostileCase{"NoRange", ColumnsOn("", ScalingXml("5", "5"))},
        HostileCase{"EndlessRange", ColumnsOn("", ScalingXml("-1e308", "1e308"))},
        HostileCase{"NoNumbers", ColumnsOn("", ScalingXml("NaN", "INF"))},
        HostileCase{"Ticks", ColumnsOn("", "<c:majorGridlines/>" + ScalingXml("0", "1000000") +
                                               "<c:majorUnit val=\"1\"/>")},
        HostileCase{
            "TinyUnit",
            ColumnsOn("", "<c:minorGridlines/><c:majorUnit val=\"1e-300\"/><c:minorUnit val=\"1e-300\"/>")},
        HostileCase{"Logarithm", ColumnsOn("", ScalingXml("-5", "0", "<c:logBase val=\"0.5\"/>"))},
        HostileCase{"FarCrossing",
                    ColumnsOn("<c:crossesAt val=\"1e300\"/>", "<c:crossesAt val=\"-1e300\"/>")},
        HostileCase{
            "Skips",
            ColumnsOn("<c:tickLblSkip val=\"9223372036854775807\"/><c:tickMarkSkip val=\"-5\"/>", "")},
        HostileCase{"ManySeries", PlotXml(ColumnsXml(ManySeries(1000)) + AxesXml(), "<c:legend/>")},
        HostileCase{"ClaimedPoints",
                    PlotXml(GroupXml("lineChart", "", Claiming("4000000")) + AxesXml(), "<c:legend/>")},
        HostileCase{"ClaimedSlices",
                    PlotXml("<c:pieChart>" + Claiming("99999999999") + "</c:pieChart>", "<c:legend/>")},
        HostileCase{"NegativeClaim", PlotXml(GroupXml("lineChart", "", Claiming("-7")) + AxesXml())},
        HostileCase{
            "Layouts",
            PlotXml("<c:layout><c:manualLayout><c:xMode val=\"edge\"/><c:x val=\"-9\"/><c:w val=\"-3\"/><c:h "
                    "val=\"1e300\"/></c:manualLayout></c:layout>" +
                        ColumnsXml(SeriesXml(0, {1, 2})) + AxesXml(),
                    "<c:legend><c:layout><c:manualLayout><c:x val=\"7\"/><c:w val=\"0\"/><c:h val=\"-1\"/>"
                    "</c:manualLayout></c:layout></c:legend>")},
        HostileCase{
            "Fonts",
            PlotXml(
                ColumnsXml(SeriesXml(0, {1, 2})) +
                AxesXml(
                    "<c:txPr><a:bodyPr rot=\"99999999999\"/><a:p><a:pPr><a:defRPr sz=\"999999999\"/></a:pPr>"
                    "</a:p></c:txPr>",
                    "<c:txPr><a:bodyPr rot=\"2700000\"/><a:p><a:pPr><a:defRPr sz=\"-5\"/></a:pPr></a:p>"
                    "</c:txPr>"))},
        HostileCase{"LongText",
                    PlotXml(ColumnsXml(SeriesXml(0, {1, 2}, "", "",
                                                 CategoriesXml({S(200'000, 'x'), S(100'000, ' ')}))) +
                                AxesXml(),
                            "<c:legend/>")},
        HostileCase{"Explosion",
                    PlotXml("<c:doughnutChart>" + SeriesXml(0, {1, 2}, "<c:explosion val=\"4000000000\"/>") +
                            "<c:firstSliceAng val=\"-1e9\"/><c:holeSize val=\"1000\"/></c:doughnutChart>")}),
    [](const auto& each) { return S(each.param.name); });

TEST_F(DrawingTest, LegendsAreReadOnlyAsFarAsTheyAreShown) {
  OpenChart(ChartPartXml(PlotXml("<c:pieChart>" + Claiming("4000000") + "</c:pieChart>", "<c:legend/>")));
  const auto lines = xlsx::LegendLines(*Book().Chart("/xl/charts/chart1.xml"));
  ASSERT_EQ(lines.size(), xlsx::kMostLegendEntries);
  EXPECT_EQ(lines[2].text, "3");
}

TEST_F(DrawingTest, LegendTextsOfSeveralLevelsAreBounded) {
  const S e = "\xC3\xA9";  // One UTF-16 unit, but two bytes.
  const auto repeated = [](const S& text, int count) {
    S all;
    for (int i = 0; i < count; ++i) all += text;
    return all;
  };
  std::vector<std::vector<std::pair<int, S>>> tenLevels(10, {{0, "o"}});
  tenLevels[0] = {{0, "own"}};
  tenLevels[8] = {{0, "eighth"}};
  const struct {
    const char* what;
    S categories;
    Texts texts;
  } cases[] = {
      {"the outermost level first",
       LevelsXml(4, {{{0, "a"}, {1, "b"}, {3, "d"}}, {{0, "A"}, {3, "D"}}, {{1, "x"}}}),
       {"A a", "x A b", "3", "x D d"}},
      {"an empty innermost level",
       LevelsXml(4, {{}, {{0, "A"}, {3, "D"}}, {{0, "x"}}}),
       {"x A", "2", "3", "x D"}},
      {"at most eight outer levels",
       LevelsXml(4, tenLevels),
       {"eighth " + repeated("o ", 7) + "own", "2", "3", "4"}},
      {"a long outer text",
       LevelsXml(4, {{{0, "a"}, {3, "d"}}, {{0, repeated(e, 32'766)}, {3, repeated(e, 40'000)}}}),
       {repeated(e, 32'766) + " ", "2", "3", repeated(e, 32'767)}},
      {"a long text",
       CategoriesXml({S(32'767, 'x'), S(40'000, 'y')}),
       {S(32'767, 'x'), S(32'767, 'y'), "3", "4"}},
  };
  for (const auto& test : cases) {
    OpenChart(ChartPartXml(
        PlotXml("<c:pieChart>" + SeriesXml(0, {1, 2, 3, 4}, "", "", test.categories) + "</c:pieChart>",
                "<c:legend/>")));
    Texts texts;
    for (const auto& line : xlsx::LegendLines(*Book().Chart("/xl/charts/chart1.xml")))
      texts.push_back(line.text);
    EXPECT_EQ(texts, test.texts) << test.what;
  }
}

TEST_F(DrawingTest, LegendTextsAreReadOnlyForTheFirstEntries) {
  const S levels = LevelsXml(4000, {{{1999, "last"}, {2000, "no more"}}, {{0, S(1'000'000, 'x')}}});
  OpenChart(ChartPartXml(PlotXml(
      "<c:pieChart>" + SeriesXml(0, Numbers(4000, 1), "", "", levels) + "</c:pieChart>", "<c:legend/>")));
  const auto texts = xlsx::LegendTexts(*Book().Chart("/xl/charts/chart1.xml"));
  ASSERT_EQ(texts.size(), xlsx::kMostLegendEntries);
  EXPECT_EQ(texts.front(), "1");
  EXPECT_EQ(texts.back(), S(32'767, 'x'));
}

TEST_F(DrawingTest, FiveThousandPointsOf254SeriesStayUsable) {
  Numbers values;
  for (int i = 0; i < 5000; ++i) values.push_back(std::sin(i / 50.0) + i % 7);
  S series;
  for (int s = 0; s < 254; ++s) series += SeriesXml(s, values);
  const S chart = PlotXml(LinesXml(series) + AxesXml(), "<c:legend/>");
  const Drawing drawing = Draw(chart);
  EXPECT_LT(drawing.items.size(), 5000u);
  EXPECT_EQ(DrawingComplaints(drawing), "");
  EXPECT_EQ(ItemsOf(drawing, Role::kLine).size(), 254u);
}

TEST_F(DrawingTest, ColumnsThinnerThanPixelsAreFewPathsOfTheirColours) {
  Numbers values;
  for (int i = 0; i < 2000; ++i) values.push_back(i % 50 == 49 ? -3 : 10 + std::sin(i / 50.0));
  S series;
  for (int s = 0; s < 40; ++s) {
    series += SeriesXml(s, values, s == 39 ? "<c:invertIfNegative val=\"1\"/>" : "");
  }
  const Drawing drawing = Draw(PlotXml(ColumnsXml(series) + AxesXml()));
  std::size_t steps = 0;
  for (const auto& item : ItemsOf(drawing, Role::kBar)) {
    steps += std::get<PathItem>(item.content).path.Steps().size();
  }
  EXPECT_LT(steps, 40'000u);  // 400,000 if each bar is drawn by itself
  const Rect plot = BoxOf(drawing, Role::kPlotArea), bars = BoxOf(drawing, Role::kBar);
  EXPECT_NEAR(bars.width, plot.width, 1);
  // The last series is in front, in its colour and in the colour of points below zero.
  const auto front = ItemsOf(drawing, Role::kBar, 40);
  ASSERT_GT(front.size(), 1u);
  EXPECT_NE(FillOf(front[0]), FillOf(front[1]));
  EXPECT_EQ(drawing.items.back().tag.role == Role::kBar, false);
  EXPECT_EQ(DrawingComplaints(drawing), "");
}

TEST_F(DrawingTest, HundredThousandCategoriesHaveLabelsThatFit) {
  Numbers values(100'000, 5);
  Texts names;
  for (int i = 0; i < 100'000; ++i) names.push_back("Name " + std::to_string(i));
  for (const bool horizontal : {false, true}) {
    const S first = horizontal ? "<c:barDir val=\"bar\"/>" : "<c:barDir val=\"col\"/>";
    const Drawing drawing =
        Draw(PlotXml(GroupXml("barChart", first, SeriesXml(0, values, "", "", CategoriesXml(names))) +
                     AxesXml("<c:tickLblSkip val=\"1\"/>", "", horizontal)));
    const auto labels = TextsOf(drawing, Role::kTickLabel, 1);
    EXPECT_TRUE(labels.size() > 10 && labels.size() < 40) << labels.size();
    EXPECT_LT(ItemsOf(drawing, Role::kTickMark, 1).size(), 400u);
    EXPECT_EQ(DrawingComplaints(drawing), "");
  }
}

TEST_F(DrawingTest, MoreLabelsThanAPersonCanReadAreLeftOut) {
  const S labels = "<c:dLbls><c:showVal val=\"1\"/></c:dLbls>";
  const Drawing drawing = Draw(PlotXml(LinesXml(SeriesXml(0, Numbers(20'001, 1), labels)) + AxesXml()));
  EXPECT_EQ(ItemsOf(drawing, Role::kDataLabel).size(), 20'000u);
  EXPECT_EQ(notes_, render::Notes{"The chart has more data labels than are drawn; the rest is left out."});
}

TEST_F(DrawingTest, DenseMarkersAreDrawnOnce) {
  const Numbers values(5000, 1);
  const Drawing drawing = Draw(PlotXml(
      LinesXml(SeriesXml(0, values, "<c:marker><c:symbol val=\"circle\"/><c:size val=\"6\"/></c:marker>")) +
      AxesXml()));
  const double width = BoxOf(drawing, Role::kPlotArea).width;
  EXPECT_NEAR(static_cast<double>(ItemsOf(drawing, Role::kMarker).size()), width / 2, 2);
}

}  // namespace
}  // namespace plotsmith

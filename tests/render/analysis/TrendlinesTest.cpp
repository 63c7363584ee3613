#include "render/model/Analysis.h"
#include "tests/render/analysis/AnalysisTest.h"

namespace plotsmith {
namespace {

using namespace test;
using render::FitTrend;
using render::TrendKind;

using TrendlinesTest = AnalysisTest;

TEST_F(TrendlinesTest, CurvesAreFoundByLeastSquares) {
  const auto points = [](auto curve) {
    std::pair<Numbers, Numbers> all;
    for (int i = 1; i <= 9; ++i) {
      all.first.push_back(i);
      all.second.push_back(curve(static_cast<double>(i)));
    }
    return all;
  };
  const auto linear = points([](double x) { return 2.5 * x - 3; });
  const auto sixth = [](double x) { return std::pow(x, 6) - 2 * x * x + 1; };
  struct {
    TrendKind kind;
    std::pair<Numbers, Numbers> points;
    S equation;
    std::optional<double> intercept = {};
    double determination = 1;
    std::size_t order = 2;
  } const kCases[] = {
      {TrendKind::kLinear, linear, "y = 2.5x - 3"},
      // The sums of x * x, x * y and y * y are 285, 577.5 and 1187.25. The variance of y is 375 / 9.
      {TrendKind::kLinear, linear, "y = 2.0263x", 0.0, 1 - 17.052632 / 375},
      {TrendKind::kLinear, {{1, 2, 3, 4}, {2, 1, 4, 3}}, "y = 0.6x + 1", {}, 0.36},
      {TrendKind::kLogarithmic, points([](double x) { return 4 * std::log(x) + 7; }), "y = 4ln(x) + 7"},
      {TrendKind::kExponential, points([](double x) { return 3 * std::exp(0.25 * x); }), "y = 3e^0.25x"},
      {TrendKind::kExponential, points([](double x) { return 3 * std::exp(-0.5 * x); }), "y = 3e^-0.5x", 3.0},
      {TrendKind::kPower, points([](double x) { return 5 * std::pow(x, 1.5); }), "y = 5x^1.5"},
      {TrendKind::kPolynomial, points([](double x) { return -x * x + 4 * x; }), "y = -x² + 4x"},
      {TrendKind::kPolynomial, points(sixth), "y = x⁶ - 2x² + 1", {}, 1, 6},
  };
  for (const auto& test : kCases) {
    const auto curve = FitTrend(test.kind, test.order, test.intercept, test.points.first, test.points.second);
    ASSERT_TRUE(curve) << test.equation;
    // A coefficient that only rounding leaves counts as zero.
    const auto format = [](double number) { return render::EquationNumber(std::round(number * 1e7) / 1e7); };
    S equation = EquationOf(*curve, format);
    for (const char* none :
         {" + 0x⁵", " - 0x⁵", " + 0x⁴", " - 0x⁴", " + 0x³", " - 0x³", " + 0x", " - 0x", " + 0", " - 0"}) {
      const auto at = equation.find(none);
      const auto end = at + S(none).size();
      const bool whole = at != S::npos && (end == equation.size() || equation[end] == ' ');
      if (whole) equation.erase(at, S(none).size());
    }
    EXPECT_EQ(equation, test.equation);
    EXPECT_NEAR(curve->determination, test.determination, 1e-6) << test.equation;
  }
}

TEST_F(TrendlinesTest, NoCurveIsFoundWithoutEnoughPoints) {
  struct {
    TrendKind kind;
    std::size_t order;
    Numbers x, y;
  } const kCases[] = {
      {TrendKind::kLinear, 1, {1}, {1}},
      {TrendKind::kLinear, 1, {2, 2, 2}, {1, 2, 3}},
      {TrendKind::kPolynomial, 4, {1, 2, 3, 4}, {1, 2, 3, 4}},
      {TrendKind::kExponential, 1, {1, 2}, {-1, 0}},
      {TrendKind::kPower, 1, {0, -1}, {1, 2}},
      // One point without a logarithm is enough.
      {TrendKind::kExponential, 1, {1, 2, 3}, {1, 2, 0}},
      {TrendKind::kPower, 1, {1, 2, 3}, {1, -2, 3}},
      {TrendKind::kPower, 1, {0, 2, 3}, {1, 2, 3}},
      {TrendKind::kLogarithmic, 1, {-1, 2, 3}, {1, 2, 3}},
      {TrendKind::kLinear, 1, {kNoValue, 1}, {1, kNoValue}},
      {TrendKind::kMovingAverage, 1, {1, 2}, {1, 2}},
  };
  for (const auto& test : kCases) EXPECT_FALSE(FitTrend(test.kind, test.order, {}, test.x, test.y));
  const auto huge = FitTrend(TrendKind::kLinear, 1, {}, {-1e308, 1e308}, {-1e308, 1e308});
  ASSERT_TRUE(huge);
  EXPECT_NEAR(huge->At(5e307) / 5e307, 1, 1e-9);
}

TEST_F(TrendlinesTest, NumbersInEquationsHaveFiveDigits) {
  const std::pair<double, S> kCases[] = {{0.942857, "0.9429"}, {14.28571, "14.286"}, {103.5714, "103.57"},
                                         {123456.7, "123457"}, {-2, "-2"},           {0, "0"},
                                         {0.00021, "0.0002"},  {999999.4, "999999"}, {999999.6, "1E+06"},
                                         {-3.2e6, "-3E+06"},   {1e9, "1E+09"},       {0.00002, "2E-05"},
                                         {9.7e-6, "1E-05"},    {-3e12, "-3E+12"},    {1e300, "1E+300"},
                                         {kNoValue, "?"}};
  for (const auto& [number, text] : kCases) EXPECT_EQ(render::EquationNumber(number), text);
}

TEST_F(TrendlinesTest, TrendlinesGoThroughTheirPointsAndBeyond) {
  const S line = "<c:name>Trend</c:name>" + LookXml("", SolidXml("7030A0"));
  S trend = TrendXml("linear", "<c:forward val=\"2\"/><c:backward val=\"0.5\"/>");
  trend.insert(S("<c:trendline>").size(), line);
  const Drawing drawing = DrawColumns({2, 4, 6}, trend);
  EXPECT_EQ(notes_, render::Notes());
  const auto items = ItemsOf(drawing, Role::kTrendline, 1);
  ASSERT_EQ(items.size(), 1u);
  const auto& path = std::get<PathItem>(items[0].content);
  EXPECT_EQ(HexOf(path.stroke.color), "#7030A0");
  EXPECT_EQ(path.stroke.width, 2);
  // five places: three categories, and two for the forecast, of which half a place is free
  const Rect plot = BoxOf(drawing, Role::kPlotArea), box = path.path.Bounds();
  EXPECT_NEAR(BoxesOf(drawing, Role::kBar)[0].Center().x, plot.left + plot.width / 10, 1e-6);
  EXPECT_NEAR(box.left, plot.left, 1e-6);
  EXPECT_NEAR(box.Right(), plot.left + plot.width * 0.9, 1e-6);
  EXPECT_NEAR(box.Bottom(), plot.Bottom() - plot.height * 0.1, 1e-6);
  EXPECT_NEAR(box.top, plot.top, 1e-6);
}

TEST_F(TrendlinesTest, MovingAveragesBeginAtTheirFirstWholePeriod) {
  const Drawing drawing =
      DrawColumns({1, 3, 5, kNoValue, 9, 7}, TrendXml("movingAvg", "<c:period val=\"2\"/>"));
  const auto items = ItemsOf(drawing, Role::kTrendline);
  ASSERT_EQ(items.size(), 1u);
  const Rect plot = BoxOf(drawing, Role::kPlotArea);
  Numbers values;
  for (const auto& step : std::get<PathItem>(items[0].content).path.Steps()) {
    values.push_back(std::round((plot.Bottom() - step.to.y) / plot.height * 1e6) / 1e5);
  }
  EXPECT_EQ(values, (Numbers{2, 4}));  // A single point behind the gap is no line.
}

TEST_F(TrendlinesTest, TrendlinesSayTheirEquationAndHaveLegendEntries) {
  const S label = "<c:dispRSqr val=\"1\"/><c:dispEq val=\"1\"/>";
  const S format = "<c:trendlineLbl><c:numFmt formatCode=\"0.000\" sourceLinked=\"0\"/></c:trendlineLbl>";
  const S series =
      SeriesXml(0, {1, 3, 2, 5}, TrendXml("linear", label) + TrendXml("poly", "<c:order val=\"3\"/>"));
  const S other = SeriesXml(
      1, {2, 4, 6, 8}, TrendXml("movingAvg", "<c:period val=\"3\"/>") + TrendXml("linear", label + format));
  const Drawing drawing =
      DrawGroup("lineChart", "<c:grouping val=\"standard\"/>", series + other, kZeroToTen,
                "<c:legend><c:legendEntry><c:idx val=\"3\"/><c:delete val=\"1\"/></c:legendEntry>"
                "</c:legend>");
  EXPECT_EQ(TextsOf(drawing, Role::kTrendlineLabel, 1), (Texts{"y = 1.1x", "R² = 0.6914"}));
  EXPECT_EQ(TextsOf(drawing, Role::kTrendlineLabel, 2), (Texts{"y = 2.000x", "R² = 1.000"}));
  EXPECT_EQ(TextsOf(drawing, Role::kLegendEntry),
            (Texts{"Series 0", "Series 1", "Linear (Series 0)", "3 per. Mov. Avg. (Series 1)",
                   "Linear (Series 1)"}));
  EXPECT_EQ(DrawingComplaints(drawing), "");
}

TEST_F(TrendlinesTest, DatesGoOnForTrendlines) {
  const S trend = TrendXml("linear", "<c:forward val=\"4\"/><c:dispEq val=\"1\"/>");
  const S series = SeriesXml(0, {1, 2, 3}, trend, "", NumbersXml("cat", {45000, 45001, 45002}));
  const Drawing drawing = Draw(PlotXml(ColumnsXml(series) + DateAxesXml()));
  // seven days, of which the last one is the end of the line
  const Rect plot = BoxOf(drawing, Role::kPlotArea), line = BoxOf(drawing, Role::kTrendline);
  EXPECT_NEAR(BoxesOf(drawing, Role::kBar)[0].Center().x, plot.left + plot.width / 14, 1e-6);
  EXPECT_NEAR(line.Right(), plot.Right() - plot.width / 14, 1e-6);
  EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 2).back(), "8");
  EXPECT_EQ(TextsOf(drawing, Role::kTrendlineLabel), Texts{"y = x - 44999"});
}

TEST_F(TrendlinesTest, DatesBeginEarlierForTrendlines) {
  const auto back = [](const S& length) {
    return TrendXml("linear", "<c:backward val=\"" + length + "\"/><c:dispEq val=\"1\"/>");
  };
  struct {
    const char* what;
    S first, second;     // the backward lengths of the trendlines of two series
    double slots, bars;  // the number of slots, and of those before the first bar
    double from, other;  // the places in slots where the lines begin
    Numbers dates = {45000, 45001, 45002};
    Texts equations = {"y = x - 44999", "y = -x + 45003"};
  } const kCases[] = {
      {"nothing before", "0", "0", 3, 0, 0, 0},
      {"half a day", "0.5", "0", 3, 0, -0.5, 0},
      {"days", "3", "1", 6, 3, 0, 2},
      {"the second line", "0", "1.2", 4, 1, 1, -0.2},
      {"months", "2", "0", 5, 2, 0, 2, {45292, 45323, 45352}, {"y = x", "y = -x + 4"}},
      {"before the first date", "1e300", "0", 5, 2, -0.5, 2, {2, 3, 4}, {"y = x - 1", "y = -x + 5"}},
  };
  const S axes =
      DateAxesXml("<c:numFmt formatCode=\"yyyy-mm-dd\" sourceLinked=\"0\"/>", ScalingXml("-10", "10"));
  for (const auto& test : kCases) {
    const S dates = NumbersXml("cat", test.dates);
    const S series = SeriesXml(0, {1, 2, 3}, back(test.first), "", dates) +
                     SeriesXml(1, {3, 2, 1}, back(test.second), "", dates);
    const Drawing drawing = Draw(PlotXml(ColumnsXml(series, "<c:overlap val=\"100\"/>") + axes));
    const Rect plot = BoxOf(drawing, Role::kPlotArea);
    const auto slotAt = [&](double x) { return (x - plot.left) / plot.width * test.slots - 0.5; };
    EXPECT_NEAR(slotAt(BoxesOf(drawing, Role::kBar, 1)[0].Center().x), test.bars, 1e-6) << test.what;
    EXPECT_NEAR(slotAt(BoxesOf(drawing, Role::kBar, 2)[2].Center().x), test.slots - 1, 1e-6) << test.what;
    EXPECT_NEAR(slotAt(BoxOf(drawing, Role::kTrendline, 1).left), test.from, 1e-6) << test.what;
    EXPECT_NEAR(slotAt(BoxOf(drawing, Role::kTrendline, 2).left), test.other, 1e-6) << test.what;
    EXPECT_EQ(TextsOf(drawing, Role::kTrendlineLabel), test.equations) << test.what;
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.what;
    EXPECT_EQ(notes_, render::Notes()) << test.what;
  }
}

TEST_F(TrendlinesTest, LegendsHaveEntriesOfDrawnTrendlinesOnly) {
  const S unfit = "A trendline isn't drawn because no line of its kind fits the points of its series.";
  const S longest = "A moving average isn't drawn because its period isn't shorter than its series.";
  const S beyond = "A trendline isn't drawn because fewer than two of its points are on the axes.";
  const S linear = TrendXml("linear"), average = TrendXml("movingAvg");
  struct {
    const char* what;
    S trend;
    Numbers values;
    render::Notes notes;  // why the line isn't drawn
    S axis = kZeroToTen;
  } const kCases[] = {
      {"drawn", linear, {1, 2, 3}, {}},
      {"a value of zero at the edge", linear, {0, 0, 0}, {}},
      {"no logarithm", TrendXml("exp"), {1, -2, 3}, {unfit}},
      {"a long period", TrendXml("movingAvg", "<c:period val=\"3\"/>"), {1, 2, 3}, {longest}},
      {"a moving average", average, {1, 2, 3, 4}, {}},
      {"without neighbours", average, {1, 2, kNoValue, 4}, {beyond}},
      {"below the axis", linear, {1, 2, 3}, {beyond}, ScalingXml("4", "10")},
      {"above the axis", linear, {2, 2, 3}, {beyond}, ScalingXml("0", "1")},
      {"steep across the axis", linear, {-1e9, 1e9}, {}, ScalingXml("-1", "1")},
      {"no logarithm on the axis",
       average,
       {-1, -2, -3},
       {beyond},
       ScalingXml("1", "10", "<c:logBase val=\"10\"/>")},
  };
  for (const auto& test : kCases) {
    const S deletedLast = "<c:legendEntry><c:idx val=\"3\"/><c:delete val=\"1\"/></c:legendEntry>";
    const Drawing drawing =
        DrawGroup("lineChart", "<c:grouping val=\"standard\"/>",
                  SeriesXml(0, test.values, test.trend) + SeriesXml(1, {1, 5, 9}, linear + linear), test.axis,
                  "<c:legend>" + deletedLast + "</c:legend>");
    const Texts entries = TextsOf(drawing, Role::kLegendEntry);
    const bool isDrawn = test.notes.empty();
    EXPECT_EQ(entries.size(), isDrawn ? 4u : 3u) << test.what;
    EXPECT_EQ(entries.back(), "Linear (Series 1)") << test.what;
    EXPECT_EQ(ItemsOf(drawing, Role::kTrendline, 1).size(), isDrawn ? 1u : 0u) << test.what;
    EXPECT_EQ(notes_, test.notes) << test.what;
  }
}

TEST_F(TrendlinesTest, AxesHaveRoomOnlyForWhatIsSeen) {
  // A line can't begin before the first category, and its end there needs no negative values.
  const Drawing drawing = DrawColumns({10, 20, 30}, TrendXml("linear", "<c:backward val=\"9\"/>"), "");
  EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 2).front(), "0");
  EXPECT_EQ(notes_,
            (render::Notes{"The backward forecast of a trendline ends where the category axis begins."}));
}

TEST_F(TrendlinesTest, CurvesKeepTheirSlopeWhereTheyLeaveThePlotArea) {
  const Drawing drawing = DrawColumns({1, 1e3, 1e6, 1e9}, TrendXml("exp"));
  const Rect plot = BoxOf(drawing, Role::kPlotArea);
  const auto items = ItemsOf(drawing, Role::kTrendline);
  ASSERT_EQ(items.size(), 1u);
  const auto& steps = std::get<PathItem>(items[0].content).path.Steps();
  EXPECT_GT(steps.size(), 20u);
  for (const auto& step : steps) {
    const double x = (step.to.x - plot.left) / plot.width * 4 + 0.5;
    EXPECT_NEAR((plot.Bottom() - step.to.y) / plot.height * 10, std::pow(1000, x - 1), 1e-6);
  }
  EXPECT_NEAR(steps.back().to.y, plot.top - 20, 1e-6);  // where the last of it may be seen
}

TEST_F(TrendlinesTest, SteepLinesCrossThePlotAreaWhereTheyPassItsValues) {
  struct {
    Numbers values;
    double place;  // the number of the category, from 1, at which the line passes 0; 0 without a line
  } const kCases[] = {{{-1e9, 1e9}, 1.5},     {{1e9, -1e9}, 1.5}, {{-1e9, 2e9}, 4.0 / 3},
                      {{2e9, -1e9}, 5.0 / 3}, {{1e9, 3e9}, 0},    {{-3e9, -1e9}, 0}};
  for (const auto& test : kCases) {
    const Drawing drawing = DrawColumns(test.values, TrendXml("linear"));
    const Rect plot = BoxOf(drawing, Role::kPlotArea), line = BoxOf(drawing, Role::kTrendline);
    EXPECT_EQ(ItemsOf(drawing, Role::kTrendline).size(), test.place == 0 ? 0u : 1u) << test.place;
    EXPECT_EQ(notes_.size(), test.place == 0 ? 1u : 0u) << test.place;
    if (test.place == 0) continue;
    EXPECT_NEAR(line.Center().x, plot.left + plot.width / 2 * (test.place - 0.5), 1e-3) << test.place;
    EXPECT_NEAR(line.top, plot.top - 20, 0.1) << test.place;
    EXPECT_NEAR(line.Bottom(), plot.Bottom() + 20, 0.1) << test.place;
  }
}

TEST_F(TrendlinesTest, LabelsOfTrendlinesAreAtTheirEndOrWhereTheirLayoutSays) {
  const auto draw = [&](const S& layout) {
    return DrawColumns({2, 4}, TrendXml("linear", "<c:dispEq val=\"1\"/><c:trendlineLbl>" + layout +
                                                      LookXml(SolidXml("FFFFCC")) + "</c:trendlineLbl>"));
  };
  const auto frameOf = [](const Drawing& drawing) {
    return BoundsOf(ItemsOf(drawing, Role::kTrendlineLabel)[0]);
  };
  const Drawing usual = draw("");
  const Rect own = frameOf(usual), line = BoxOf(usual, Role::kTrendline);
  EXPECT_NEAR(own.Right(), line.Right(), 1e-6);
  EXPECT_NEAR(own.Bottom(), line.top - 4, 1e-6);
  EXPECT_EQ(TextsOf(usual, Role::kTrendlineLabel), Texts{"y = 2x"});
  struct {
    S mode, x, y;
    double left, top;
  } const kCases[] = {
      {"edge", "0.25", "0.5", 96, 135},
      {"factor", "-0.25", "0.1", own.left - 96, own.top + 27},
      {"edge", "9", "9", 384 - own.width, 270 - own.height},
      {"edge", "-9", "-9", 0, 0},
  };
  for (const auto& test : kCases) {
    const Drawing drawing = draw(LayoutXml(test.mode, test.x, test.y));
    const Rect frame = frameOf(drawing);
    EXPECT_NEAR(frame.left, test.left, 1e-6) << test.mode << test.x;
    EXPECT_NEAR(frame.top, test.top, 1e-6) << test.mode << test.y;
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.mode << test.x;
  }
}

TEST_F(TrendlinesTest, CurvesAreSampledBetweenTheEndsOfTheirAxis) {
  const auto draw = [&](const S& kind, const S& x, const Numbers& values) {
    const S series = PointsXml(0, {1, 10, 100'000}, values, TrendXml(kind, "<c:backward val=\"9\"/>"));
    const S axes = ValueAxesXml(x, kZeroToTen);
    return Draw(PlotXml(GroupXml("scatterChart", "", series) + axes));
  };
  for (const char* kind : {"linear", "log", "power"}) {
    const Drawing drawing = draw(kind, kZeroToTen, {1, 2, 6});
    const auto items = ItemsOf(drawing, Role::kTrendline);
    ASSERT_EQ(items.size(), 1u) << kind;
    EXPECT_GT(std::get<PathItem>(items[0].content).path.Steps().size(), 50u) << kind;
    EXPECT_EQ(DrawingComplaints(drawing), "") << kind;
    EXPECT_NEAR(BoundsOf(items[0]).Right(), BoxOf(drawing, Role::kPlotArea).Right(), 1e-6) << kind;
    EXPECT_EQ(notes_, render::Notes()) << kind;
  }
  const S beyond = ScalingXml("200000", "300000");
  EXPECT_TRUE(ItemsOf(draw("linear", beyond, {1, 2, 6}), Role::kTrendline).empty());
  EXPECT_EQ(notes_,
            (render::Notes{"A trendline isn't drawn because fewer than two of its points are on the axes."}));
}

TEST_F(TrendlinesTest, TheLimitOfTrendlinesEndsNothingElse) {
  S trends;
  for (int i = 0; i < 400; ++i) trends += TrendXml("movingAvg", "<c:period val=\"100\"/>");
  const S bars = "<c:upDownBars><c:upBars/><c:downBars/></c:upDownBars>";
  const S later = TrendXml("linear") + ErrorBarsXml("fixedVal", "1");
  const Drawing drawing = Draw(
      PlotXml(ColumnsXml(SeriesXml(0, Numbers(5000, 1), trends) + SeriesXml(1, Numbers(1000, 2), trends)) +
              LinesXml(SeriesXml(2, {1, 2}, later) + SeriesXml(3, {3, 4}), bars) + AxesXml()));
  // 4,000,000 points of fits, of which each line of the first series takes 55,100
  EXPECT_EQ(ItemsOf(drawing, Role::kTrendline, 1).size(), 72u);
  EXPECT_EQ(ItemsOf(drawing, Role::kErrorBar).size(), 2u);
  EXPECT_EQ(ItemsOf(drawing, Role::kUpDownBar).size(), 2u);
  EXPECT_EQ(notes_,
            (render::Notes{"The chart has more trendlines through many points than are drawn; the rest is "
                           "left out."}));
}

TEST_F(TrendlinesTest, LegendsOfManyTrendlinesHaveTheEntriesThatFit) {
  S trends, entries;
  for (int i = 0; i < 30'000; ++i) {
    trends += TrendXml("linear");
    entries += "<c:legendEntry><c:idx val=\"" + std::to_string(i + 1) + "\"/>" +
               (i % 20 == 0 ? "" : "<c:delete val=\"1\"/>") + "</c:legendEntry>";
  }
  const Drawing drawing = DrawGroup("barChart", "<c:barDir val=\"col\"/>", SeriesXml(0, {1, 2}, trends), "",
                                    "<c:legend>" + entries + "</c:legend>");
  EXPECT_EQ(TextsOf(drawing, Role::kLegendEntry).size(), 18u);
  EXPECT_EQ(notes_,
            (render::Notes{"The chart has more trendlines through many points than are drawn; the rest is "
                           "left out.",
                           "The legend has room for 18 of its entries; the others are left out."}));
}

}  // namespace
}  // namespace plotsmith

#include "tests/render/analysis/AnalysisTest.h"

namespace plotsmith {
namespace {

using namespace test;

using ErrorBarsTest = AnalysisTest;

TEST_F(ErrorBarsTest, ErrorBarsReachAsFarAsTheirAmounts) {
  using Ends = std::vector<std::pair<double, double>>;
  const S custom = NumbersXml("plus", {1, 2, 3}) + NumbersXml("minus", {0.5, 1, kNoValue});
  struct {
    const char* what;
    S bars;
    Ends ends;
  } const kCases[] = {
      {"fixed", ErrorBarsXml("fixedVal", "1.5"), {{3.5, 0.5}, {5.5, 2.5}, {7.5, 4.5}}},
      {"plus", ErrorBarsXml("fixedVal", "1", "", "plus"), {{3, 2}, {5, 4}, {7, 6}}},
      {"minus", ErrorBarsXml("fixedVal", "1", "", "minus"), {{2, 1}, {4, 3}, {6, 5}}},
      {"percentage", ErrorBarsXml("percentage", "50"), {{3, 1}, {6, 2}, {9, 3}}},
      {"custom", ErrorBarsXml("cust", "0", custom), {{3, 1.5}, {6, 3}, {9, 6}}},
      {"one custom amount for all",
       ErrorBarsXml("cust", "0", NumbersXml("plus", {1}) + NumbersXml("minus", {2})),
       {{3, 0}, {5, 2}, {7, 4}}},
      // The mean is 4, and the standard deviation of the sample is 2.
      {"standard deviation about the mean", ErrorBarsXml("stdDev", "1"), {{6, 2}, {6, 2}, {6, 2}}},
      {"standard error",
       ErrorBarsXml("stdErr", "1"),
       {{3.154701, 0.845299}, {5.154701, 2.845299}, {7.154701, 4.845299}}},
  };
  for (const auto& test : kCases) {
    const Drawing drawing = DrawColumns({2, 4, 6}, test.bars);
    EXPECT_EQ(EndsOf(drawing, Role::kErrorBar), test.ends) << test.what;
    EXPECT_EQ(notes_, render::Notes()) << test.what;
  }
}

TEST_F(ErrorBarsTest, ErrorBarsHaveTheirPlaceLineAndCaps) {
  for (const bool caps : {true, false}) {
    const S noCap = S("<c:noEndCap val=\"") + (caps ? "0" : "1") + "\"/>";
    const Drawing drawing =
        DrawColumns({2, 4}, ErrorBarsXml("fixedVal", "1", noCap, "both", LookXml("", SolidXml("00B050"))));
    const auto items = ItemsOf(drawing, Role::kErrorBar, 1);
    ASSERT_EQ(items.size(), 2u);
    for (std::size_t i = 0; i < 2; ++i) {
      const auto& path = std::get<PathItem>(items[i].content);
      EXPECT_NEAR(path.path.Bounds().Center().x, BoxesOf(drawing, Role::kBar)[i].Center().x, 1e-9);
      EXPECT_NEAR(path.path.Bounds().width, caps ? 6 : 0, 1e-9);
      EXPECT_EQ(path.path.Steps().size(), caps ? 6u : 2u);
      EXPECT_EQ(HexOf(path.stroke.color), "#00B050");
      EXPECT_EQ(path.stroke.width, 2);
      EXPECT_EQ(items[i].tag.point, static_cast<int>(i + 1));
    }
  }
}

TEST_F(ErrorBarsTest, ErrorBarsOfScatterChartsGoBothWays) {
  const S bars = ErrorBarsXml("fixedVal", "1") + ErrorBarsXml("fixedVal", "2", "<c:errDir val=\"x\"/>");
  const S series = PointsXml(0, {5}, {4}, bars);
  const S axes = ValueAxesXml(kZeroToTen, kZeroToTen);
  const Drawing drawing = Draw(PlotXml(GroupXml("scatterChart", "", series) + axes));
  const Rect plot = BoxOf(drawing, Role::kPlotArea);
  const auto boxes = BoxesOf(drawing, Role::kErrorBar);
  ASSERT_EQ(boxes.size(), 2u);
  EXPECT_NEAR(boxes[0].height, plot.height / 5, 1e-9);
  EXPECT_NEAR(boxes[0].Center().x, plot.left + plot.width / 2, 1e-9);
  EXPECT_NEAR(boxes[1].width, plot.width * 0.4, 1e-9);
  EXPECT_NEAR(boxes[1].Center().y, plot.top + plot.height * 0.6, 1e-9);
}

TEST_F(ErrorBarsTest, AxesHaveRoomForErrorBarsAndExtendedTrendlines) {
  const auto last = [&](const S& more) {
    return TextsOf(DrawColumns({1, 2, 3}, more, ""), Role::kTickLabel, 2).back();
  };
  EXPECT_EQ(last(""), "3.5");
  EXPECT_EQ(last(ErrorBarsXml("fixedVal", "40")), "50");
  EXPECT_EQ(last(TrendXml("linear")), "3.5");
  EXPECT_EQ(last(TrendXml("linear", "<c:forward val=\"5\"/>")), "9");
}

TEST_F(ErrorBarsTest, UpDownBarsGoFromTheFirstSeriesToTheLast) {
  const S bars = "<c:upDownBars><c:gapWidth val=\"100\"/><c:upBars/><c:downBars>" +
                 LookXml(SolidXml("C00000")) + "</c:downBars></c:upDownBars>";
  const Drawing drawing = Draw(PlotXml(
      LinesXml(SeriesXml(0, {2, 8, 5}) + SeriesXml(1, {9, 9, 9}) + SeriesXml(2, {6, 3, kNoValue}), bars) +
      AxesXml("", kZeroToTen)));
  EXPECT_EQ(notes_, render::Notes());
  EXPECT_EQ(EndsOf(drawing, Role::kUpDownBar), (std::vector<std::pair<double, double>>{{6, 2}, {8, 3}}));
  const auto items = ItemsOf(drawing, Role::kUpDownBar);
  ASSERT_EQ(items.size(), 2u);
  EXPECT_EQ(FillOf(items[0]), "#FFFFFF");
  EXPECT_EQ(FillOf(items[1]), "#C00000");
  const Rect plot = BoxOf(drawing, Role::kPlotArea);
  EXPECT_NEAR(BoundsOf(items[0]).width, plot.width / 3 / 2, 1e-9);
  EXPECT_NEAR(BoundsOf(items[1]).Center().x, plot.Center().x, 1e-9);
}

TEST_F(ErrorBarsTest, ErrorBarsOfSharesAreShares) {
  const S first = "<c:barDir val=\"col\"/><c:grouping val=\"percentStacked\"/><c:overlap val=\"100\"/>";
  const S toOne = ScalingXml("0", "1");
  const Drawing drawing = DrawGroup(
      "barChart", first, SeriesXml(0, {2, 3}, ErrorBarsXml("fixedVal", "1")) + SeriesXml(1, {2, 2}), toOne);
  // wholes of 4 and 5, in tenths of the axis
  EXPECT_EQ(EndsOf(drawing, Role::kErrorBar), (std::vector<std::pair<double, double>>{{7.5, 2.5}, {8, 4}}));
}

TEST_F(ErrorBarsTest, SaysWhatIsNotDrawn) {
  const S longest = "A moving average isn't drawn because its period isn't shorter than its series.";
  const S shadow =
      LookXml("<a:effectLst><a:outerShdw><a:srgbClr val=\"000000\"/></a:outerShdw></a:effectLst>");
  const auto average = [](int period) {
    return TrendXml("movingAvg", "<c:period val=\"" + std::to_string(period) + "\"/>");
  };
  struct {
    S more, axis;
    render::Notes notes;
  } const kCases[] = {
      {average(2), "", {}},
      {average(3), "", {longest}},
      {average(4) + average(5), "", {longest}},
      {ErrorBarsXml("fixedVal", "1", "<c:errDir val=\"x\"/>"),
       "",
       {"Error bars along a category axis aren't drawn."}},
      {ErrorBarsXml("fixedVal", "1", "", "both", shadow), "", {"Shadows of error bars aren't drawn."}},
      {"", "<c:majorGridlines>" + shadow + "</c:majorGridlines>", {"Shadows of gridlines aren't drawn."}},
      {"", shadow, {"Shadows of axes aren't drawn."}},
  };
  for (const auto& test : kCases) {
    const Drawing drawing = DrawGroup("lineChart", "<c:grouping val=\"standard\"/>",
                                      SeriesXml(0, {1, 2, 3}, test.more), test.axis);
    EXPECT_EQ(notes_, test.notes) << test.more;
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.more;
  }
}

TEST_F(ErrorBarsTest, WildNumbersStayOnTheDrawing) {
  Numbers many;
  for (int i = 0; i < 20'000; ++i) many.push_back(i % 7 == 0 ? 1e308 : -1e308);
  const S wild = TrendXml("poly",
                          "<c:order val=\"99\"/><c:forward val=\"1e300\"/><c:backward val=\"INF\"/>"
                          "<c:intercept val=\"NaN\"/><c:dispEq val=\"1\"/>") +
                 TrendXml("movingAvg", "<c:period val=\"4000000000\"/>") + TrendXml("exp") +
                 ErrorBarsXml("stdDev", "1e308") + ErrorBarsXml("percentage", "-1e300");
  for (const Numbers& values : {many, Numbers{}, Numbers{kNoValue}, Numbers{0}}) {
    const Drawing drawing = DrawColumns(values, wild, "");
    EXPECT_LT(drawing.items.size(), 200'000u);
    EXPECT_EQ(DrawingComplaints(drawing), "");
  }
}

}  // namespace
}  // namespace plotsmith

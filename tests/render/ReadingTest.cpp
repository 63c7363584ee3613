#include "runtime/Strings.h"
#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;

/// A test of how settings in the file become what is drawn.
class ReadingTest : public DrawingTest {
 protected:
  Drawing DrawColumns(const S& series, const S& category = "", const S& value = "") {
    return Draw(PlotXml(ColumnsXml(series) + AxesXml(category, value)));
  }
};

TEST_F(ReadingTest, DisplayUnitsDivideTheLabelsAndHaveAName) {
  const auto builtIn = [](const S& unit) { return "<c:builtInUnit val=\"" + unit + "\"/>"; };
  struct {
    S unit;
    double factor;
    Texts name;
  } const kCases[] = {
      {builtIn("hundreds"), 1e2, {"Hundreds"}},
      {builtIn("thousands"), 1e3, {"Thousands"}},
      {builtIn("tenThousands"), 1e4, {"x 10000"}},
      {builtIn("hundredThousands"), 1e5, {"x 100000"}},
      {builtIn("millions"), 1e6, {"Millions"}},
      {builtIn("tenMillions"), 1e7, {"x 10000000"}},
      {builtIn("hundredMillions"), 1e8, {"x 100000000"}},
      {builtIn("billions"), 1e9, {"Billions"}},
      {builtIn("trillions"), 1e12, {"Trillions"}},
      {builtIn("dozens"), 1, {}},
      {"<c:custUnit val=\"0.1\"/>", 0.1, {"x 0.1"}},
      {"<c:custUnit val=\"1\"/>", 1, {"x 1"}},
      {"<c:custUnit val=\"0\"/>", 1, {}},
      {"<c:custUnit val=\"INF\"/>", 1, {}},
  };
  for (const auto& test : kCases) {
    const Drawing drawing = DrawColumns(SeriesXml(0, {2 * test.factor}), "",
                                        "<c:numFmt formatCode=\"0.0\" sourceLinked=\"0\"/><c:dispUnits>" +
                                            test.unit + "<c:dispUnitsLbl/></c:dispUnits>");
    EXPECT_EQ(TextsOf(drawing, Role::kDisplayUnits), test.name) << test.unit;
    EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 2), (Texts{"0.0", "0.5", "1.0", "1.5", "2.0", "2.5"}))
        << test.unit;
  }
}

TEST_F(ReadingTest, PatternsWithoutColoursAreBlackOnWhite) {
  const S red = "<a:srgbClr val=\"FF0000\"/>";
  struct {
    S pattern, preset, foreground, background;
  } const kCases[] = {
      {"<a:pattFill/>", "pct50", "#000000", "#FFFFFF"},
      {"<a:pattFill prst=\"dkUpDiag\"><a:fgClr>" + red + "</a:fgClr></a:pattFill>", "dkUpDiag", "#FF0000",
       "#FFFFFF"},
      {"<a:pattFill prst=\"pct5\"><a:bgClr>" + red + "</a:bgClr></a:pattFill>", "pct5", "#000000", "#FF0000"},
  };
  for (const auto& test : kCases) {
    const Drawing drawing = DrawColumns(SeriesXml(0, {2}, LookXml(test.pattern)));
    const auto item = std::get<PathItem>(ItemsOf(drawing, Role::kBar)[0].content);
    const auto& fill = std::get<render::PatternFill>(item.fill);
    EXPECT_EQ(fill.preset, test.preset);
    EXPECT_EQ(HexOf(fill.foreground), test.foreground) << test.pattern;
    EXPECT_EQ(HexOf(fill.background), test.background) << test.pattern;
    EXPECT_EQ(fill.foreground.alpha, 1) << test.pattern;
    EXPECT_EQ(fill.background.alpha, 1) << test.pattern;
  }
}

TEST_F(ReadingTest, CategoriesComeFromAnyKindOfCache) {
  const auto cached = [](const S& kind, const S& cache) {
    return "<c:cat><c:" + kind + "Ref><c:f>Nowhere!A1</c:f><c:" + cache +
           "><c:ptCount val=\"2\"/><c:pt idx=\"1\"><c:v>7</c:v></c:pt></c:" + cache + "></c:" + kind +
           "Ref></c:cat>";
  };
  for (const S& categories : {cached("str", "strCache"), cached("num", "numCache")}) {
    const Drawing drawing = DrawColumns(SeriesXml(0, {3, 4}, "", "", categories));
    EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 1), Texts{"7"}) << categories;
  }
}

TEST_F(ReadingTest, DatesHaveTheLongestUnitThatKeepsThemApartAndTheFormatOfTheirCells) {
  struct {
    Numbers serials;  // 45292 is 1 January 2024; 368 days have too many labels to compare
    S format;
    Texts labels;
  } const kCases[] = {
      {{45292, 45658}, "yyyy", {"2024", "2025"}},
      {{45292, 45323}, "mmm", {"Jan", "Feb"}},
      {{45292, 45658, 45659}, "", {}},
      {{45292, 45292}, "d/m", {"1/1"}},
      {{45292}, "d/m", {"1/1"}},
      {{-1, 45292}, "d", {"########", "1"}},
  };
  for (const auto& test : kCases) {
    S categories = NumbersXml("cat", test.serials, test.format);
    categories = runtime::Replace(categories, "numLit>", "numCache>");
    categories = runtime::Replace(categories, "<c:numCache>", "<c:numRef><c:numCache>");
    categories = runtime::Replace(categories, "</c:numCache>", "</c:numCache></c:numRef>");
    const Drawing drawing = Draw(PlotXml(
        ColumnsXml(SeriesXml(0, Numbers(test.serials.size(), 1), "", "", categories)) + DateAxesXml()));
    const Texts labels = TextsOf(drawing, Role::kTickLabel, 1);
    if (test.labels.empty()) {
      EXPECT_NEAR(BoxesOf(drawing, Role::kBar)[0].width * 368 * 2.5, BoxOf(drawing, Role::kPlotArea).width,
                  1e-6);
      continue;
    }
    EXPECT_EQ(labels, test.labels) << test.format;
  }
}

TEST_F(ReadingTest, SeriesHaveLinesAndMarkersAsTheStyleOfTheirGroupSays) {
  const auto scatter = [](const S& style) { return "<c:scatterStyle val=\"" + style + "\"/>"; };
  struct {
    S group, style;
    std::size_t lines, markers;
  } const kCases[] = {
      {"scatterChart", "", 1, 2},
      {"scatterChart", scatter("lineMarker"), 1, 2},
      {"scatterChart", scatter("smoothMarker"), 1, 2},
      {"scatterChart", scatter("marker"), 0, 2},
      {"scatterChart", scatter("line"), 1, 0},
      {"scatterChart", scatter("smooth"), 1, 0},
      {"scatterChart", scatter("none"), 0, 0},
      {"lineChart", "", 1, 0},
      {"lineChart", "<c:marker val=\"0\"/>", 1, 0},
      {"lineChart", "<c:marker val=\"1\"/>", 1, 2},
      {"radarChart", "", 1, 0},
      {"radarChart", "<c:radarStyle val=\"standard\"/>", 1, 0},
      {"radarChart", "<c:radarStyle val=\"marker\"/>", 1, 2},
  };
  for (const auto& test : kCases) {
    const bool points = test.group == "scatterChart";
    const S series = points ? PointsXml(0, {1, 2}, {1, 2}) : SeriesXml(0, {1, 2});
    const Drawing drawing =
        Draw(PlotXml(GroupXml(test.group, test.style, series) + (points ? ValueAxesXml() : AxesXml())));
    EXPECT_EQ(ItemsOf(drawing, Role::kLine).size(), test.lines) << test.group << test.style;
    EXPECT_EQ(ItemsOf(drawing, Role::kMarker).size(), test.markers) << test.group << test.style;
  }
}

TEST_F(ReadingTest, TextsAreTurnedAsTheirBodySays) {
  const std::pair<S, double> kCases[] = {{"", 0},
                                         {"rot=\"2700000\"", 45},
                                         {"rot=\"-60000000\" vert=\"horz\"", 0},
                                         {"rot=\"-5400000\" vert=\"horz\"", -90},
                                         {"vert=\"vert\"", 90},
                                         {"vert=\"vert270\"", -90},
                                         {"rot=\"0\" vert=\"vert\"", 90}};
  for (const auto& [body, rotation] : kCases) {
    const Drawing drawing = DrawColumns(SeriesXml(0, {1}, "", "", CategoriesXml({"East"})), BodyXml(body));
    EXPECT_EQ(std::get<TextItem>(ItemsOf(drawing, Role::kTickLabel, 1)[0].content).rotation, rotation)
        << body;
  }
  const S stacked = BodyXml("vert=\"wordArtVert\"");
  const Drawing drawing = DrawColumns(SeriesXml(0, {1}, "", "", CategoriesXml({"East"})), stacked);
  EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 1), (Texts{"E", "a", "s", "t"}));
}

TEST_F(ReadingTest, LinesBetweenPointsHaveTheirStroke) {
  const S look = LookXml("", SolidXml("00B050"));
  struct {
    S lines, color;
    double width;
  } const kCases[] = {{"<c:dropLines>" + look + "</c:dropLines>", "#00B050", 2},
                      {"<c:hiLowLines>" + look + "</c:hiLowLines>", "#00B050", 2},
                      {"<c:dropLines/>", "#000000", 0.75}};
  for (const auto& test : kCases) {
    const Drawing drawing =
        Draw(PlotXml(LinesXml(SeriesXml(0, {1, 2}) + SeriesXml(1, {3, 4}), test.lines) + AxesXml()));
    const auto items = ItemsOf(drawing, Role::kDropLine);
    ASSERT_EQ(items.size(), 2u) << test.lines;
    for (const Item& item : items) {
      EXPECT_EQ(HexOf(std::get<PathItem>(item.content).stroke.color), test.color) << test.lines;
      EXPECT_EQ(std::get<PathItem>(item.content).stroke.width, test.width) << test.lines;
    }
  }
}

TEST_F(ReadingTest, GroupsAndAxesThatCantBeReadLeaveTheOthersDrawn) {
  const S unknown = GroupXml("funnelChart", "", SeriesXml(5, {9, 9}));
  S axes;
  for (int i = 3; i < 30; ++i) {
    axes += "<c:valAx><c:axId val=\"" + std::to_string(i) + "\"/><c:delete val=\"1\"/></c:valAx>";
  }
  const Drawing drawing =
      Draw(PlotXml(unknown + ColumnsXml(SeriesXml(0, {1, 2})) + unknown + AxesXml() + axes));
  EXPECT_EQ(notes_, render::Notes());
  EXPECT_EQ(BoxesOf(drawing, Role::kBar).size(), 2u);
  EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 2), (Texts{"0", "0.5", "1", "1.5", "2", "2.5"}));
}

TEST_F(ReadingTest, ChartsWithMorePointsThanAreDrawnSayItOnce) {
  S series;
  for (int i = 0; i < 3; ++i) {
    series += runtime::Replace(SeriesXml(i, {1}), "<c:ptCount val=\"1\"/>", "<c:ptCount val=\"2000000\"/>");
  }
  Draw(PlotXml(LinesXml(series) + AxesXml()));
  EXPECT_EQ(notes_, render::Notes{"The chart has more points than are drawn; the rest is left out."});
}

TEST_F(ReadingTest, ScalesHaveRoomForTheExtensionsOfTheirTrendlinesOnly) {
  const auto trend = [](const S& kind, const S& more) {
    return "<c:trendline><c:trendlineType val=\"" + kind + "\"/>" + more + "</c:trendline>";
  };
  const S back = "<c:backward val=\"0.5\"/>", far = "<c:backward val=\"2\"/>", on = "<c:forward val=\"2\"/>";
  struct {
    S more;
    const char *least, *most;  // of the labels of X values, and the greatest label of values
  } const kCases[] = {
      {"", "0", "7"},
      {trend("linear", back), "0", "7"},
      {trend("linear", far), "-2", "7"},
      {trend("linear", on), "0", "9"},
      {trend("log", far), "0", "7"},
      {trend("power", far + on), "0", "9"},
      {trend("movingAvg", "<c:period val=\"2\"/>" + far + on), "0", "7"},
  };
  for (const auto& test : kCases) {
    const S series = PointsXml(0, {1, 3, 6}, {1, 4, 9}, test.more);
    const Drawing drawing = Draw(PlotXml(GroupXml("scatterChart", "", series) + ValueAxesXml()));
    const Texts labels = TextsOf(drawing, Role::kTickLabel, 1);
    EXPECT_EQ(labels.front(), test.least) << test.more;
    EXPECT_EQ(labels.back(), test.most) << test.more;
  }
}

TEST_F(ReadingTest, TheDescriptionSaysIfItLeavesOutValues) {
  const auto described = [](const S& name, int count) {
    S line = "\n" + name + ":";
    for (int i = 1; i <= count; ++i) line += (i > 1 ? ", " : " ") + std::to_string(i) + " 7";
    return line;
  };
  const S more = "\nThere are more values.";
  struct {
    int columns, otherColumns, lines;  // the number of points of each series
    S description;
  } const kCases[] = {
      {200, 0, 0,
       described("Series 0", 200) + described("Series 1", 0) + "\nLine chart." + described("Series 2", 0)},
      {201, 0, 0, described("Series 0", 200) + more},
      {150, 50, 0,
       described("Series 0", 150) + described("Series 1", 50) + "\nLine chart." + described("Series 2", 0)},
      {150, 51, 9, described("Series 0", 150) + described("Series 1", 50) + more},
      {150, 50, 1, described("Series 0", 150) + described("Series 1", 50) + "\nLine chart." + more},
  };
  for (const auto& test : kCases) {
    const auto series = [](int index, int count) {
      return SeriesXml(index, Numbers(static_cast<std::size_t>(count), 7));
    };
    const Drawing drawing = Draw(PlotXml(ColumnsXml(series(0, test.columns) + series(1, test.otherColumns)) +
                                         LinesXml(series(2, test.lines)) + AxesXml()));
    EXPECT_EQ(drawing.description, "Column chart." + test.description) << test.columns;
  }
}

}  // namespace
}  // namespace plotsmith

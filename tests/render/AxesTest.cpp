#include <numeric>
#include <set>

#include "runtime/Strings.h"
#include "tests/render/DrawingTest.h"

namespace plotsmith {
namespace {

using namespace test;

class AxesTest : public DrawingTest {
 protected:
  /// Draws a clustered column or bar chart with one series.
  Drawing DrawWith(const Numbers& values, const S& value, const S& category = "", const Texts& names = {},
                   bool horizontal = false, double width = 384) {
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
    Numbers values;
    S axis;
    Texts labels;
  } cases[] = {
      {"a plain axis", {7, 42, 18}, "", {"0", "5", "10", "15", "20", "25", "30", "35", "40", "45"}},
      {"limits and a unit by hand",
       {7, 42},
       ScalingXml("-20", "60") + "<c:majorUnit val=\"40\"/>",
       {"-20", "20", "60"}},
      {"a number format",
       {0.25, 1},
       ScalingXml("0", "1") + "<c:numFmt formatCode=\"0.0%\" sourceLinked=\"0\"/><c:majorUnit val=\"0.5\"/>",
       {"0.0%", "50.0%", "100.0%"}},
      {"powers of ten",
       {3, 1200},
       "<c:scaling><c:logBase val=\"10\"/></c:scaling>",
       {"1", "10", "100", "1000", "10000"}},
      {"thousands",
       {1000, 4000},
       "<c:majorUnit val=\"2000\"/><c:dispUnits><c:builtInUnit val=\"thousands\"/></c:dispUnits>",
       {"0", "2", "4", "6"}},
      {"limits that are the same", {7}, ScalingXml("5", "5") + "<c:majorUnit val=\"2\"/>", {"5", "7", "9"}},
      {"limits in the wrong order", {7}, ScalingXml("5", "3") + "<c:majorUnit val=\"2\"/>", {"5", "7", "9"}},
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

TEST_F(AxesTest, LongWordsBesideBarsAreBroken) {
  const S word = "https://example.com/a/path/that/has/no/blanks/and/is/as/long/as/the/chart/index.html";
  const Drawing drawing = DrawWith({2, 4}, "", "", {"b", word}, true);
  const Texts labels = TextsOf(drawing, Role::kTickLabel, 1);
  ASSERT_GT(labels.size(), 2u) << "the word has several lines";
  EXPECT_EQ(labels.front(), "b");
  EXPECT_EQ(std::accumulate(labels.begin() + 1, labels.end(), S()), word);
  EXPECT_GT(BoxOf(drawing, Role::kPlotArea).width, 384 * 0.4);
  EXPECT_EQ(DrawingComplaints(drawing), "");
}

TEST_F(AxesTest, StacksAreScaledByTheirEnds) {
  const auto grouped = [](const S& name) { return "<c:grouping val=\"" + name + "\"/>"; };
  const S shares = grouped("percentStacked"), sums = grouped("stacked");
  struct {
    const char *what, *element;
    S first;
    Numbers one, two;
    Texts labels;
  } cases[] = {
      {"bars on both sides", "barChart", shares, {3, 1}, {-1, 1}, {"-100%", "-50%", "0%", "50%", "100%"}},
      {"areas on both sides", "areaChart", shares, {3, 1}, {-1, 1}, {"-100%", "-50%", "0%", "50%", "100%"}},
      {"shares below zero", "barChart", shares, {-3, -1}, {-1, -1}, {"-100%", "-50%", "0%"}},
      {"bars below zero go down", "barChart", sums, {30, 10}, {-10, 0}, {"-20", "0", "20", "40"}},
      {"large bars begin at zero",
       "barChart",
       sums,
       {100, 100},
       {5, 6},
       {"0", "20", "40", "60", "80", "100", "120"}},
      {"large areas begin at zero",
       "areaChart",
       sums,
       {100, 100},
       {5, 6},
       {"0", "20", "40", "60", "80", "100", "120"}},
      {"areas are sums", "areaChart", sums, {30, 10}, {-10, 0}, {"0", "20", "40"}},
      {"lines are sums", "lineChart", sums, {30, 10}, {-10, 0}, {"0", "20", "40"}},
  };
  for (const auto& test : cases) {
    const S unit = test.first == shares ? "0.5" : "20";
    const Drawing drawing =
        Draw(PlotXml(GroupXml(test.element, test.first, SeriesXml(0, test.one) + SeriesXml(1, test.two)) +
                     AxesXml("", "<c:majorUnit val=\"" + unit + "\"/>")));
    EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 2), test.labels) << test.what;
  }
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

TEST_F(AxesTest, CategoriesOfSeveralLevelsHaveARowForEach) {
  const S levels = LevelsXml(
      4, {{{0, "Q1"}, {1, "Q2"}, {2, "Q1"}, {3, "Q2"}}, {{0, "2023"}, {2, "2024"}}, {{0, S(90, 'x')}}});
  struct {
    const char* what;
    bool horizontal;
    S category, value;
    std::size_t lines;
  } cases[] = {
      {"below", false, "", "", 5},
      {"beside", true, "", "", 5},
      {"on the marks", false, "", "<c:crossBetween val=\"midCat\"/>", 1},
      {"as one text", false, "<c:noMultiLvlLbl val=\"1\"/>", "", 0},
  };
  for (const auto& test : cases) {
    const S first = S("<c:barDir val=\"") + (test.horizontal ? "bar" : "col") + "\"/>";
    const Drawing drawing = Draw(
        PlotXml(GroupXml("barChart", first, SeriesXml(0, {1, 2, 3, 4}, "", "", levels)) +
                AxesXml("<c:majorTickMark val=\"none\"/>" + test.category, test.value, test.horizontal)));
    EXPECT_EQ(notes_, Texts()) << test.what;
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.what;
    EXPECT_EQ(ItemsOf(drawing, Role::kTickMark, 1).size(), test.lines) << test.what;
    Texts labels = TextsOf(drawing, Role::kTickLabel, 1);
    if (!test.category.empty()) {
      EXPECT_NE(labels[0].find("xxx"), S::npos) << test.what;
      continue;
    }
    ASSERT_EQ(labels.size(), 7u) << test.what;
    EXPECT_TRUE(labels[6].starts_with("xxx") && labels[6].ends_with("...")) << labels[6];
    labels.pop_back();
    EXPECT_EQ(labels, (Texts{"Q1", "Q2", "Q1", "Q2", "2023", "2024"})) << test.what;
    if (test.value.empty()) {
      // The text of a group is in the middle of its bars, farther out than their labels.
      const auto boxes = BoxesOf(drawing, Role::kTickLabel, 1), bars = BoxesOf(drawing, Role::kBar);
      const Rect pair = Union(bars[0], bars[1]);
      EXPECT_NEAR(test.horizontal ? boxes[4].Center().y : boxes[4].Center().x,
                  test.horizontal ? pair.Center().y : pair.Center().x, 0.1);
      EXPECT_TRUE(test.horizontal ? boxes[4].Right() < boxes[0].left : boxes[4].top > boxes[0].Bottom());
    }
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

TEST_F(AxesTest, LabelsAndGridlinesAreAtTheirValues) {
  for (const bool reversed : {false, true}) {
    for (const bool horizontal : {false, true}) {
      const S scaling =
          S("<c:scaling><c:orientation val=\"") + (reversed ? "maxMin" : "minMax") +
          "\"/><c:max val=\"4\"/><c:min val=\"0\"/></c:scaling><c:majorGridlines/><c:majorUnit val=\"1\"/>";
      const Drawing drawing = DrawWith({1, 4}, scaling, "", {}, horizontal);
      const Rect plot = BoxOf(drawing, Role::kPlotArea);
      const auto lines = BoxesOf(drawing, Role::kGridline, 2), labels = BoxesOf(drawing, Role::kTickLabel, 2);
      ASSERT_EQ(lines.size(), 5u);
      ASSERT_EQ(labels.size(), 5u);
      for (std::size_t i = 0; i < 5; ++i) {
        const double share = static_cast<double>(reversed ? 4 - i : i) / 4;
        const auto place = [&](const Rect& box) { return horizontal ? box.Center().x : box.Center().y; };
        const double expected =
            horizontal ? plot.left + plot.width * share : plot.Bottom() - plot.height * share;
        EXPECT_NEAR(place(lines[i]), expected, 1e-6) << reversed << horizontal << i;
        EXPECT_NEAR(place(labels[i]), expected, 1e-6) << reversed << horizontal << i;
      }
      EXPECT_EQ(DrawingComplaints(drawing), "");
    }
  }
}

TEST_F(AxesTest, AnAxisIsAtItsCrossing) {
  struct {
    const char* what;
    S category, value;
    double share;  // A share of the plot area's height, from the bottom.
    bool labelsBelowPlot;
  } cases[] = {
      {"at zero", "", "", 1.0 / 3, false},
      {"at the least", "<c:crosses val=\"min\"/>", "", 0, true},
      {"at the most", "<c:crosses val=\"max\"/>", "", 1, false},
      {"at a value", "<c:crossesAt val=\"5\"/>", "", 0.5, false},
      {"labels at the low end", "<c:tickLblPos val=\"low\"/>", "", 1.0 / 3, true},
  };
  for (const auto& test : cases) {
    const Drawing drawing = DrawWith({-5, 15}, ScalingXml("-10", "20") + test.value, test.category);
    const Rect plot = BoxOf(drawing, Role::kPlotArea);
    EXPECT_NEAR(BoxOf(drawing, Role::kAxisLine, 1).top, plot.Bottom() - plot.height * test.share, 1e-6)
        << test.what;
    EXPECT_EQ(BoxOf(drawing, Role::kTickLabel, 1).top >= plot.Bottom(), test.labelsBelowPlot) << test.what;
    // A bar extends from the axis to its value, up or down.
    const double axis = BoxOf(drawing, Role::kAxisLine, 1).top;
    const auto bars = BoxesOf(drawing, Role::kBar);
    ASSERT_EQ(bars.size(), 2u) << test.what;
    for (std::size_t i = 0; i < 2; ++i) {
      const double end = plot.Bottom() - plot.height * (i == 0 ? 5 : 25) / 30;
      EXPECT_NEAR(bars[i].top, std::min(axis, end), 1e-6) << test.what << i;
      EXPECT_NEAR(bars[i].Bottom(), std::max(axis, end), 1e-6) << test.what << i;
    }
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.what;
  }
}

TEST_F(AxesTest, AreasAndDropLinesEndAtTheCategoryAxisUnlessTheyAreStacked) {
  const S scaling = ScalingXml("0", "20");
  struct {
    const char* what;
    S group, grouping, last;
    Role role;
    double top,
        bottom;  // The bounds of the drawn items, as shares of the plot area's height from the bottom.
  } cases[] = {
      {"areas", "areaChart", "standard", "", Role::kArea, 0.75, 0.1},
      {"stacked areas", "areaChart", "stacked", "", Role::kArea, 0.75, 0},
      {"drop lines", "lineChart", "standard", "<c:dropLines/>", Role::kDropLine, 0.75, 0.1},
      {"columns", "barChart", "clustered", "", Role::kBar, 0.75, 0.1},
      {"stacked columns", "barChart", "stacked", "", Role::kBar, 0.75, 0},
  };
  for (const auto& test : cases) {
    const Drawing drawing = Draw(PlotXml(GroupXml(test.group, "<c:grouping val=\"" + test.grouping + "\"/>",
                                                  SeriesXml(0, {2, 15}), test.last) +
                                         AxesXml("<c:crossesAt val=\"5\"/>", scaling)));
    const Rect plot = BoxOf(drawing, Role::kPlotArea), box = BoxOf(drawing, test.role);
    EXPECT_NEAR(box.top, plot.Bottom() - plot.height * test.top, 1e-6) << test.what;
    EXPECT_NEAR(box.Bottom(), plot.Bottom() - plot.height * test.bottom, 1e-6) << test.what;
  }
}

TEST_F(AxesTest, LabelsOfBarsBelowTheirAxisAreBelowThem) {
  const Drawing drawing =
      Draw(PlotXml(ColumnsXml(SeriesXml(0, {2, 15}, "<c:dLbls><c:showVal val=\"1\"/></c:dLbls>")) +
                   AxesXml("<c:crossesAt val=\"5\"/>", ScalingXml("-5", "20"))));
  const auto bars = BoxesOf(drawing, Role::kBar), labels = BoxesOf(drawing, Role::kDataLabel);
  ASSERT_EQ(labels.size(), 2u);
  EXPECT_GE(labels[0].top, bars[0].Bottom());
  EXPECT_LE(labels[1].Bottom(), bars[1].top);
}

/// The look of the labels on the category axis.
struct LabelCase {
  const char* name;
  std::size_t count;
  S text;  // The text before the number of the category.
  S axis;
  double rotation;
  bool all;  // Whether all labels are drawn.
};

class CategoryLabelsTest : public AxesTest, public ::testing::WithParamInterface<LabelCase> {};

TEST_P(CategoryLabelsTest, AreWrappedTurnedOrSkippedUntilNoneTouchesAnother) {
  const LabelCase& test = GetParam();
  Texts names;
  for (std::size_t i = 0; i < test.count; ++i) names.push_back(test.text + std::to_string(i + 1));
  const Drawing drawing = DrawWith(Numbers(test.count, 5), "", test.axis, names);
  EXPECT_EQ(DrawingComplaints(drawing), "");
  const auto labels = ItemsOf(drawing, Role::kTickLabel, 1);
  ASSERT_FALSE(labels.empty());
  std::set<int> numbers;
  for (const auto& label : labels) {
    numbers.insert(label.tag.point);
    EXPECT_EQ(std::get<TextItem>(label.content).rotation, test.rotation);
  }
  EXPECT_EQ(numbers.size() == test.count, test.all) << numbers.size();
  EXPECT_TRUE(numbers.contains(1));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, CategoryLabelsTest,
    ::testing::Values(LabelCase{"Plain", 4, "Quarter ", "", 0, true},
                      LabelCase{"EastAsian", 4, "東京都新宿区西新宿二丁目第一本庁舎", "", 0, true},
                      LabelCase{"WrappedAtBlanks", 6, "Northern hemisphere ", "", 0, true},
                      LabelCase{"Slanted", 12, "Septembers", "", -45, true},
                      LabelCase{"Upright", 24, "Septembers", "", -90, true},
                      LabelCase{"UprightAndSkipped", 90, "Septembers", "", -90, false},
                      LabelCase{"NumbersAreSkipped", 200, "", "", 0, false},
                      LabelCase{"SkippedByHand", 10, "Q", "<c:tickLblSkip val=\"3\"/>", 0, false},
                      LabelCase{"FlatByHand", 40, "Septembers", BodyXml("rot=\"0\""), 0, false},
                      LabelCase{"TurnedByHand", 5, "Q", BodyXml("rot=\"5400000\""), 90, true}),
    [](const auto& each) { return S(each.param.name); });

TEST_F(AxesTest, DatesAreAtTheirDayMonthOrYear) {
  struct {
    const char* what;
    S axis;
    Numbers serials, slots;  // 45292 is 1 January 2024
    Texts labels;
  } cases[] = {
      {"days", "", {45292, 45293, 45296}, {0, 1, 4}, {"1-1", "1-2", "1-3", "1-4", "1-5"}},
      {"months by themselves", "", {45292, 45352, 45383}, {0, 2, 3}, {"1-1", "2-1", "3-1", "4-1"}},
      {"years by hand",
       "<c:baseTimeUnit val=\"years\"/>",
       {45292, 45352, 46023},
       {0, 0, 2},
       {"1-1", "1-1", "1-1"}},
      {"the last day of each month",
       "<c:baseTimeUnit val=\"days\"/><c:majorUnit val=\"1\"/><c:majorTimeUnit val=\"months\"/>",
       {45322, 45323, 45412},
       {0, 1, 90},
       {"1-31", "2-29", "3-31", "4-30"}},
      {"a label a year",
       "<c:baseTimeUnit val=\"months\"/><c:majorUnit val=\"1\"/><c:majorTimeUnit val=\"years\"/>",
       {45323, 45352, 46054},
       {0, 1, 24},
       {"2-1", "2-1", "2-1"}},
      {"no dates", "", {1, 1e9}, {}, {"1-1", "########"}},
  };
  for (const auto& test : cases) {
    const S axes = DateAxesXml("<c:numFmt formatCode=\"m-d\" sourceLinked=\"0\"/>" + test.axis);
    const Drawing drawing = Draw(PlotXml(GroupXml("lineChart", "",
                                                  SeriesXml(0, Numbers(test.serials.size(), 2), "", "",
                                                            NumbersXml("cat", test.serials, "m-d")),
                                                  "<c:marker val=\"1\"/>") +
                                         axes));
    EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 1), test.labels) << test.what;
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.what;
    const Rect plot = BoxOf(drawing, Role::kPlotArea);
    const auto markers = BoxesOf(drawing, Role::kMarker);
    for (std::size_t i = 0; i < test.slots.size(); ++i) {
      const double expected = plot.left + plot.width * (test.slots[i] + 0.5) / (test.slots.back() + 1);
      EXPECT_NEAR(markers[i].Center().x, expected, 1e-6) << test.what << i;
    }
  }
}

TEST_F(AxesTest, DateAxesShowTheDatesBetweenTheirBounds) {
  const S dates = NumbersXml("cat", {45292, 45293, 45294, 45295, 45296}, "m-d");  // from 1 January 2024 on
  const S trend =
      "<c:trendline><c:trendlineType val=\"linear\"/><c:forward val=\"2\"/><c:backward "
      "val=\"2\"/></c:trendline>";
  const S months = "<c:baseTimeUnit val=\"months\"/>";
  const Texts fiveDays = {"1-1", "1-2", "1-3", "1-4", "1-5"};
  const std::vector<int> all = {1, 2, 3, 4, 5};
  const auto least = [](const S& date) { return "<c:min val=\"" + date + "\"/>"; };
  const auto most = [](const S& date) { return "<c:max val=\"" + date + "\"/>"; };
  struct {
    const char* what;
    S scaling;
    Texts labels;
    std::vector<int> points;  // The numbers of the points that are seen.
    S more = "", unit = "";
  } const cases[] = {
      {"both", most("45295") + least("45293"), {"1-2", "1-3", "1-4"}, {2, 3, 4}},
      {"the first date", least("45295"), {"1-4", "1-5"}, {4, 5}},
      {"the last date", most("45293"), {"1-1", "1-2"}, {1, 2}},
      {"room on both sides",
       most("45297") + least("45291"),
       {"12-31", "1-1", "1-2", "1-3", "1-4", "1-5", "1-6"},
       all},
      {"behind the data", least("45299"), {"1-8"}, {}},
      {"before the data", most("45290"), {"12-30"}, {}},
      {"the wrong way round", most("45293") + least("45295"), fiveDays, all},
      {"no dates of Excel", most("1e300") + least("-1"), fiveDays, all},
      {"months", most("45350") + least("45270"), {"12-1", "1-1", "2-1"}, all, "", months},
      {"a trendline ends at the bounds", most("45296") + least("45292"), fiveDays, all, trend},
      {"a trendline lengthens the free end",
       least("45292"),
       {"1-1", "1-2", "1-3", "1-4", "1-5", "1-6", "1-7"},
       all,
       trend},
  };
  const struct {
    const char* group;
    S first;
    Role role;
  } groups[] = {{"barChart", "<c:barDir val=\"col\"/>", Role::kBar},
                {"lineChart", "", Role::kDropLine},
                {"areaChart", "", Role::kDropLine}};
  for (const auto& c : cases) {
    for (const auto& [group, first, role] : groups) {
      SCOPED_TRACE(S(c.what) + " of " + group);
      const S more = (group == S("areaChart") ? "" : c.more) + "<c:dLbls><c:showVal val=\"1\"/></c:dLbls>";
      const S series = SeriesXml(0, {1, 2, 3, 4, 5}, more, "", dates);
      const S category =
          "<c:scaling>" + c.scaling + "</c:scaling><c:numFmt formatCode=\"m-d\" sourceLinked=\"0\"/>";
      const S axes = DateAxesXml(category + c.unit, "<c:crossBetween val=\"between\"/>");
      const Drawing drawing = Draw(PlotXml(GroupXml(group, first, series, "<c:dropLines/>") + axes));
      if (c.more.empty() || group != S("areaChart")) {
        EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 1), c.labels);
      }
      for (const Role seen : {role, Role::kDataLabel}) {
        std::vector<int> points;
        for (const Item& item : ItemsOf(drawing, seen)) points.push_back(item.tag.point);
        EXPECT_EQ(points, c.points);
      }
      EXPECT_EQ(DrawingComplaints(drawing), "");
    }
  }
  notes_.clear();
  const S scaling = "<c:scaling>" + most("45293") + "</c:scaling>";
  const Drawing solid = Draw("<c:view3D/>" + PlotXml(GroupXml("bar3DChart", "<c:barDir val=\"col\"/>",
                                                              SeriesXml(0, {1, 2, 3, 4, 5}, "", "", dates)) +
                                                     DateAxesXml(scaling)));
  EXPECT_EQ(TextsOf(solid, Role::kTickLabel, 1).size(), 5u);
  EXPECT_EQ(notes_,
            (render::Notes{"A date axis in 3-D shows all dates; its minimum and its maximum aren't used."}));
}

TEST_F(AxesTest, LinesComeFromDatesOutsideOfTheBounds) {
  const S dates = NumbersXml("cat", {45292, 45293, 45294, 1, 2958465}, "m-d");
  for (const S cross : {"between", "midCat"}) {
    for (const int last : {45292, 45293}) {
      const S bounds = ScalingXml("45292", std::to_string(last));
      const Drawing drawing = Draw(PlotXml(LinesXml(SeriesXml(0, {1, 2, 3, 4, 5}, "", "", dates)) +
                                           DateAxesXml(bounds, "<c:crossBetween val=\"" + cross + "\"/>")));
      const Rect plot = BoxOf(drawing, Role::kPlotArea);
      const auto lines = ItemsOf(drawing, Role::kLine);
      ASSERT_EQ(lines.size(), 1u) << cross << last;
      std::vector<int> sides;  // -1 is before the plot area, 1 is behind it
      for (const auto& step : std::get<PathItem>(lines[0].content).path.Steps())
        sides.push_back(step.to.x < plot.left - 1 ? -1 : step.to.x > plot.Right() + 1 ? 1 : 0);
      EXPECT_EQ(sides, (std::vector<int>{-1, 0, last > 45292 ? 0 : 1, 1, 1})) << cross << last;
    }
  }
}

TEST_F(AxesTest, LinesAndAreasGoFromDateToDate) {
  const S dates = NumbersXml("cat", {45292, 45296, 45294}, "m-d");
  struct {
    const char* group;
    Role role;
    bool hasDates;
  } cases[] = {
      {"lineChart", Role::kLine, true}, {"areaChart", Role::kArea, true}, {"lineChart", Role::kLine, false}};
  for (const auto& test : cases) {
    const S axes = test.hasDates ? DateAxesXml() : AxesXml();
    const Drawing drawing =
        Draw(PlotXml(GroupXml(test.group, "", SeriesXml(0, {1, 3, 2}, "", "", dates)) + axes));
    const auto steps = std::get<PathItem>(ItemsOf(drawing, test.role)[0].content).path.Steps();
    ASSERT_GE(steps.size(), 3u);
    EXPECT_NEAR(steps[1].to.x, (steps[0].to.x + steps[2].to.x) / 2, 1e-6) << test.group;
    // The values increase by date, but not in the order of the cells.
    EXPECT_EQ(steps[1].to.y > steps[2].to.y, test.hasDates) << test.group;
  }
}

TEST_F(AxesTest, LongNamesBesideBarsLeaveRoomForThem) {
  const Drawing drawing = DrawWith(
      {3, 5}, "", "", {"A name that goes on and on until nothing is left of the chart at all", "B"}, true);
  EXPECT_GT(BoxOf(drawing, Role::kPlotArea).width, 384 * 0.3);
  EXPECT_GT(TextsOf(drawing, Role::kTickLabel, 1).size(), 2u);  // lines
  EXPECT_EQ(DrawingComplaints(drawing), "");
}

TEST_F(AxesTest, TurnedNamesBesideBarsAreNeitherWrappedNorShortened) {
  const S name = "A name that goes on and on until little is left of the chart";
  for (const S rotation : {"2700000", "-2700000"}) {
    const Drawing drawing = DrawWith({3, 5}, "", BodyXml("rot=\"" + rotation + "\""), {name, "B"}, true);
    EXPECT_EQ(TextsOf(drawing, Role::kTickLabel, 1), (Texts{name, "B"})) << rotation;
  }
}

TEST_F(AxesTest, LabelsOfSeveralLinesBesideBarsAreSkippedByTheirHeight) {
  struct {
    const char* what;
    S text;
    std::size_t count;
    bool all;
  } cases[] = {
      {"one line", "North ", 12, true},
      {"several lines with room", "Northern hemisphere and the islands around it, as it was counted in ", 3,
       true},
      {"several lines", "Northern hemisphere and the islands around it, as it was counted in the year ", 12,
       false},
  };
  for (const auto& test : cases) {
    Texts names;
    for (std::size_t i = 0; i < test.count; ++i) names.push_back(test.text + std::to_string(i + 1));
    const Drawing drawing = DrawWith(Numbers(test.count, 5), "", "", names, true);
    std::set<int> numbers;
    for (const auto& label : ItemsOf(drawing, Role::kTickLabel, 1)) numbers.insert(label.tag.point);
    EXPECT_EQ(numbers.size() == test.count, test.all) << test.what << numbers.size();
    EXPECT_TRUE(numbers.contains(1)) << test.what;
    EXPECT_EQ(DrawingComplaints(drawing), "") << test.what;
  }
}

TEST_F(AxesTest, TitlesAreOutsideOfTheLabels) {
  const Drawing drawing = DrawWith(
      {1, 2},
      TitleXml("Sales") + "<c:dispUnits><c:builtInUnit val=\"thousands\"/><c:dispUnitsLbl/></c:dispUnits>",
      TitleXml("Quarter"));
  EXPECT_EQ(DrawingComplaints(drawing), "");
  EXPECT_EQ(TextsOf(drawing, Role::kAxisTitle, 2), Texts{"Sales"});
  EXPECT_EQ(std::get<TextItem>(ItemsOf(drawing, Role::kAxisTitle, 2)[0].content).rotation, -90);
  EXPECT_LT(BoxOf(drawing, Role::kAxisTitle, 2).Right(), BoxOf(drawing, Role::kTickLabel, 2).left);
  EXPECT_EQ(TextsOf(drawing, Role::kDisplayUnits), Texts{"Thousands"});
  EXPECT_LT(BoxOf(drawing, Role::kTickLabel, 1).Bottom(), BoxOf(drawing, Role::kAxisTitle, 1).top);
  EXPECT_NEAR(BoxOf(drawing, Role::kAxisTitle, 1).Center().x, BoxOf(drawing, Role::kPlotArea).Center().x,
              0.5);
  // The title was set to horizontal by hand.
  const S body = "<a:bodyPr rot=\"0\" vert=\"horz\"/>";
  const Drawing flat = DrawWith({1, 2}, runtime::Replace(TitleXml("Sales"), "<a:bodyPr/>", body));
  EXPECT_EQ(std::get<TextItem>(ItemsOf(flat, Role::kAxisTitle, 2)[0].content).rotation, 0);
}

}  // namespace
}  // namespace plotsmith

#include <algorithm>

#include "builder/ChartRefreshDriver.h"
#include "builder/state/BuilderVariables.h"
#include "common/RunVariables.h"
#include "tests/support/ChartCallsTest.h"
#include "tests/support/FamilyBooks.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

/// Appends the calls that make a bubble from the row after the header with its number.
void AppendBubble(Lines& lines, int number, const S& label) {
  const S series = "Chart.SeriesCollection(" + std::to_string(number) + ").",
          row = std::to_string(number + 1);
  const auto cell = [&](const S& column) {
    return "\"=VEX_ChartData!R" + row + column + ":R" + row + column + "\"";
  };
  const Lines own = {"Name = \"" + label + "\"",
                     "XValues = " + cell("C4"),
                     "Values = " + cell("C5"),
                     "BubbleSizes = " + cell("C6"),
                     "HasDataLabels = True",
                     "DataLabels.AutoScaleFont = True",
                     "DataLabels.Font.Name = \"Arial\"",
                     "DataLabels.Font.FontStyle = \"Regular\"",
                     "DataLabels.Font.Size = 9",
                     "DataLabels.Font.Color = 0",
                     "DataLabels.HorizontalAlignment = -4108",
                     "DataLabels.VerticalAlignment = -4108",
                     "DataLabels.Orientation = -4128"};
  lines.push_back("Chart.SeriesCollection.NewSeries");
  for (const S& line : own) lines.push_back(series + line);
}

/// Appends the calls that colour it. The text is empty for a bubble without a colour label.
void AppendPaint(Lines& lines, int number, const S& text) {
  const S series = "Chart.SeriesCollection(" + std::to_string(number) + ").";
  for (const char* line : {"Interior.Pattern", "Interior.PatternColorIndex", "Interior.PatternColor",
                           "Interior.ColorIndex", "Interior.Color", "Border.Weight = 1"}) {
    lines.push_back(series + line);
  }
  if (text.empty()) return;
  lines.push_back(series + "DataLabels(1).Text = \"" + text + "\"");
  lines.push_back(series + "DataLabels.Position = -4108");
}

class BubbleChartTest : public test::ChartCallsTest {
 protected:
  /// Returns the calls up to the drawing of the legend, without the colours that they set.
  Lines Calls(const test::PlainBook& book, const S& version = "16.0") {
    Lines calls = test::WithoutValues(ChartCalls(book, version), {".Interior."});
    const auto legend = std::find_if(calls.begin(), calls.end(),
                                     [](const S& line) { return line.find(".Shapes") != S::npos; });
    calls.erase(legend, calls.end());
    return calls;
  }
  static runtime::Variant ColorOf(const S& name) { return mSeriesColors->Item(name)->Color(); }
};

TEST_F(BubbleChartTest, OrderOfCalls) {
  Definition definition = BubbleDefinition();
  definition.attributes = "table-id=\"Data1\" title=\"World\"";
  definition.rest +=
      S("<axes><axis type=\"label\" label=\"Wealth\"/><axis type=\"value\" label=\"\"/></axes>") +
      Settings({"3D"});
  const auto book = BubbleBook(
      {{"Ada", "Red", 1, 2, 10}, {"Bo", "Blue", 3, 4, 30}, {" Cy ", "Red ", 5, 6, 20}}, definition);
  Lines expected = {"Chart.ChartArea.AutoScaleFont = False", "Chart.ChartType = 15"};
  AppendBubble(expected, 1, "Blue");
  AppendBubble(expected, 2, "Red");  // Labels are trimmed, names aren't.
  AppendBubble(expected, 3, "Red");
  AppendPaint(expected, 1, "Bo");
  AppendPaint(expected, 2, " Cy ");
  AppendPaint(expected, 3, "Ada");
  for (const char* line :
       {"Chart.HasTitle = True", "Chart.ChartTitle.Text = \"World\"", "Chart.HasLegend = True",
        "Chart.Axes(2, 1).HasTitle = False", "Chart.Axes(1, 1).HasTitle = False",
        "Chart.Axes(1, 1).HasTitle = True", "Chart.Axes(1, 1).AxisTitle.Text = \"Wealth\"",
        "Chart.Axes(1, 1).AxisTitle.Font.Size = 10", "Chart.Axes(1, 1).AxisTitle.Font.Name = \"Arial\"",
        "Chart.Axes(1, 1).AxisTitle.Font.Color = 0", "Chart.Axes(1, 1).AxisTitle.Font.FontStyle = \"Bold\"",
        "Chart.Axes(1, 1).AxisTitle.AutoScaleFont = True", "Chart.ChartType = 87",
        "Chart.HasLegend = False"}) {
    expected.push_back(line);
  }
  EXPECT_EQ(Calls(book), expected);
  EXPECT_TRUE(Messages().empty());

  SaveAndReopen();
  const auto series = Chart()->SeriesCollection();
  ASSERT_EQ(series->Count(), 3);
  const std::pair<const char*, double> kept[] = {{"Blue", 4}, {"Red", 6}, {"Red", 2}};
  for (int i = 1; i <= 3; ++i) {
    EXPECT_EQ(series->Item(i)->Name(), kept[i - 1].first);
    EXPECT_EQ(series->Item(i)->Values(), std::vector<runtime::Variant>{kept[i - 1].second});
    EXPECT_TRUE(series->Item(i)->HasDataLabels());
  }
  EXPECT_EQ(series->Item(2)->Interior()->Color(), series->Item(3)->Interior()->Color());
  EXPECT_NE(series->Item(1)->Interior()->Color(), series->Item(2)->Interior()->Color());
  EXPECT_EQ(Chart()->ChartType(), 87);
}

TEST_F(BubbleChartTest, OlderVersionsStartWithAScatterChartAndKeepTheirLegend) {
  Definition definition = BubbleDefinition();
  const auto book =
      BubbleBook({{"A", "Red", 1, 2, 30}, {"B", "red", 3, 4, 20}, {"C", "Blue", 5, 6, 10}}, definition);
  Lines expected = {"Chart.ChartArea.AutoScaleFont = False"};
  AppendBubble(expected, 1, "Red");
  AppendBubble(expected, 2, "Red");
  AppendBubble(expected, 3, "Blue");
  expected.push_back("Chart.ChartType = -4169");
  expected.push_back("Chart.ChartType = 15");
  AppendPaint(expected, 1, "A");
  AppendPaint(expected, 2, "B");
  AppendPaint(expected, 3, "C");
  for (const char* line : {"Chart.HasTitle = False", "Chart.HasLegend = True",
                           "Chart.Axes(2, 1).HasTitle = False", "Chart.Axes(1, 1).HasTitle = False"}) {
    expected.push_back(line);
  }
  EXPECT_EQ(Calls(book, "11.0"), expected);

  // If there is a legend, a series with a repeated name is removed from it as soon as it is made.
  for (int i = 0; i < 2; ++i) {
    const Lines again = ChartCalls();
    EXPECT_EQ(With(again, ".LegendEntries("), Lines{"Chart.Legend.LegendEntries(2).Delete"});
    const auto at = std::find(again.begin(), again.end(), "Chart.Legend.LegendEntries(2).Delete");
    ASSERT_TRUE(at != again.begin() && at + 1 < again.end());
    EXPECT_TRUE((at - 1)->starts_with("Chart.SeriesCollection(2).BubbleSizes"));
    EXPECT_EQ(*(at + 1), "Chart.SeriesCollection(2).HasDataLabels = True");
    EXPECT_EQ(With(again, "Chart.HasLegend"), Lines{"Chart.HasLegend = True"})
        << "an existing legend isn't changed until it gets its stored format";
    EXPECT_EQ(Chart()->Legend()->LegendEntries()->Count(), 2);
  }
  EXPECT_TRUE(Messages().empty());
}

TEST_F(BubbleChartTest, ANameHasTheColourOfItsNumberAndNotOfItsSeries) {
  const std::initializer_list<Bubble> distinct = {
      {"A", "x", 1, 1, 9}, {"B", "y", 1, 1, 8}, {"C", "z", 1, 1, 7}};
  ChartCalls(BubbleBook(distinct, BubbleDefinition()));
  const auto first = ColorOf("x"), second = ColorOf("y"), third = ColorOf("z");
  EXPECT_NE(first, second);
  EXPECT_NE(second, third);
  ChartCalls(BubbleBook({{"A", "x", 1, 1, 9},
                         {"B", "x", 1, 1, 8},
                         {"C", "X", 1, 1, 7},
                         {"D", "y", 1, 1, 6},
                         {"E", "x", 1, 1, 5},
                         {"F", "z", 1, 1, 4}},
                        BubbleDefinition()));
  EXPECT_EQ(mSeriesColors->Count(), 3);
  EXPECT_EQ(ColorOf("x"), first);
  EXPECT_EQ(ColorOf("y"), second);
  EXPECT_EQ(ColorOf("z"), third);
  const auto series = Chart()->SeriesCollection();
  for (const auto& [index, color] : {std::pair{3, first}, {4, second}, {5, first}, {6, third}}) {
    EXPECT_EQ(runtime::Variant(series->Item(index)->Interior()->Color()), color) << index;
  }
}

TEST_F(BubbleChartTest, ALabelThatLooksLikeAFormulaIsAName) {
  ChartCalls(BubbleBook({{"A", "=x", 1, 1, 9}, {"B", "y", 1, 1, 8}}, BubbleDefinition()));
  EXPECT_EQ(Chart()->SeriesCollection()->Item(1)->Name(), "=x");
  EXPECT_NE(ColorOf("=x"), ColorOf("y"));
  EXPECT_TRUE(Messages().empty());
}

TEST_F(BubbleChartTest, ARowWithoutAColourLabelKeepsItsPlace) {
  const auto book = BubbleBook({{"A", "Red", 1, 2, 30}, {"B", "  ", 3, 4, 20}, {"C", "Blue", 5, 6, 10}},
                               BubbleDefinition());
  const Lines calls = Calls(book);
  Lines expected = {"Chart.ChartArea.AutoScaleFont = False", "Chart.ChartType = 15"};
  AppendBubble(expected, 1, "Red");
  const S nowhere = "\"=VEX_ChartData!R1C1:R1C1\"";
  for (const S& line :
       {S("Chart.SeriesCollection.NewSeries"), S("Chart.SeriesCollection(2).Name = Null"),
        "Chart.SeriesCollection(2).XValues = " + nowhere, "Chart.SeriesCollection(2).Values = " + nowhere,
        "Chart.SeriesCollection(2).BubbleSizes = " + nowhere}) {
    expected.push_back(line);
  }
  AppendBubble(expected, 3, "Blue");
  AppendPaint(expected, 1, "A");
  AppendPaint(expected, 2, "");
  AppendPaint(expected, 3, "C");
  ASSERT_GT(calls.size(), expected.size());
  EXPECT_EQ(Lines(calls.begin(), calls.begin() + static_cast<std::ptrdiff_t>(expected.size())), expected);
  const auto series = Chart()->SeriesCollection();
  EXPECT_EQ(series->Item(1)->Interior()->Color(), series->Item(2)->Interior()->Color())
      << "in the colour of the previous series";
  EXPECT_NE(series->Item(1)->Interior()->Color(), series->Item(3)->Interior()->Color());
  EXPECT_EQ(Chart()->Shapes()->Count(), 0) << "its name has no colour, and so there is no legend";
  EXPECT_FALSE(Chart()->HasLegend());
  EXPECT_TRUE(Messages().empty());
}

TEST_F(BubbleChartTest, TypeAndLegendFollowTheDefinition) {
  const auto calls = [&](const S& settings, const S& series) {
    Definition definition = BubbleDefinition();
    definition.series = series;
    definition.rest += settings;
    return Calls(BubbleBook({{"A", "Red", 1, 2, 30}}, definition), "11.0");
  };
  const S rows = BubbleDefinition().series, none = "<series headings-in=\"none\"/>";
  const std::pair<S, Lines> types[] = {{Settings({}), {}},
                                       {Settings({"3D"}), {"Chart.ChartType = 87"}},
                                       {Settings({"quadrants"}), {"Chart.ChartType = 15"}},
                                       {Settings({"quadrants", "3D"}), {"Chart.ChartType = 87"}},
                                       {Settings({"quadrants", "quadrants"}), {}}};
  for (const auto& [xml, lines] : types) {
    Lines expected = {"Chart.ChartType = -4169", "Chart.ChartType = 15"};
    expected.insert(expected.end(), lines.begin(), lines.end());
    EXPECT_EQ(With(calls(xml, rows), "ChartType"), expected) << xml;
  }
  EXPECT_TRUE(With(calls("", none), "HasLegend").empty()) << "there was none";
  EXPECT_EQ(With(calls("", "<series headings-in=\"\"><column name=\"Group\"/></series>"), "HasLegend"),
            Lines{"Chart.HasLegend = True"});
  const S hide =
      "<auto-persistence><persist property=\"legend-visibility\" value=\"hide\"/></auto-persistence>";
  EXPECT_EQ(With(calls(hide, rows), "HasLegend"),
            (Lines{"Chart.HasLegend = True", "Chart.HasLegend = False"}));
}

TEST_F(BubbleChartTest, ANewChartLosesItsGridlines) {
  Open(BubbleBook({{"A", "Red", 1, 2, 30}}, BubbleDefinition()));
  lMethodType = 0;
  RefreshChart("VEX_Chart1");
  EXPECT_EQ(With(journal_, "HasMajorGridlines"), (Lines{"Chart.Axes(1, 1).HasMajorGridlines = False",
                                                        "Chart.Axes(2, 1).HasMajorGridlines = False"}));
}

}  // namespace
}  // namespace plotsmith

#include <algorithm>

#include "builder/state/BuilderVariables.h"
#include "readback/ChartReadBack.h"
#include "tests/support/ChartCallsTest.h"
#include "tests/support/FamilyBooks.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

const S kManual = "<data-labels manual-labels=\"yes\"/>";

class BucketChartTest : public test::ChartCallsTest {};

TEST_F(BucketChartTest, OrderOfCalls) {
  Definition definition = BucketDefinition();
  definition.rest += kManual + "<axes><axis type=\"value\" label=\"Sum\"/></axes>";
  Lines expected = {"Chart.ChartArea.AutoScaleFont = False"};
  const S bucketNames = "\"=VEX_ChartData!$E$1:$F$1\"";
  const auto item = [&](int number, const S& label, const S& text) {
    const S series = "Chart.SeriesCollection(" + std::to_string(number) + ").",
            row = std::to_string(number + 2);
    expected.push_back("Chart.SeriesCollection.NewSeries");
    for (const S& line :
         {S("ChartType = 52"), "Name = \"" + label + "\"", "XValues = " + bucketNames,
          "Values = \"=VEX_ChartData!R" + row + "C5:R" + row + "C6\"", S("HasDataLabels = True"),
          S("DataLabels.Font.Name = \"Arial\""), S("DataLabels.Font.FontStyle = \"Regular\""),
          S("DataLabels.Font.Size = 9"), S("DataLabels.Font.Color = 0"), S("DataLabels.AutoScaleFont = True"),
          S("DataLabels.HorizontalAlignment = -4108"), S("DataLabels.VerticalAlignment = -4108"),
          S("DataLabels.Position = -4108"), S("DataLabels.Orientation = -4128"),
          "DataLabels(1).Text = \"" + text + "\"", "DataLabels(2).Text = \"" + text + "\""}) {
      expected.push_back(series + line);
    }
  };
  item(1, "GROWTH", "CORE");
  item(2, "New", "Alpha");
  item(3, "old", "Beta");
  expected.push_back("Chart.ChartGroups(1).GapWidth = 0");
  for (int i = 1; i <= 3; ++i) {
    for (const char* line : {"Interior.Pattern", "Interior.PatternColorIndex", "Interior.PatternColor",
                             "Interior.ColorIndex", "Interior.Color", "Border.Color = 0"}) {
      expected.push_back("Chart.SeriesCollection(" + std::to_string(i) + ")." + line);
    }
  }
  expected.push_back("Chart.SeriesCollection.NewSeries");
  for (const S& line :
       {S("ChartType = 65"), S("Name = \"Strategic Buckets\""), "XValues = " + bucketNames,
        S("Values = \"=VEX_ChartData!R2C5:R2C6\""), S("MarkerForegroundColor = 255"),
        S("MarkerBackgroundColor = 255"), S("MarkerStyle = -4115"), S("MarkerSize = 55"),
        S("Border.LineStyle = -4142"), S("ApplyDataLabels(2)"), S("DataLabels.Position = -4108"),
        S("DataLabels.Font.Name = \"Arial\""), S("DataLabels.Font.FontStyle = \"Bold\""),
        S("DataLabels.Font.Size = 9"), S("DataLabels.Font.Color = 16777215"),
        S("DataLabels.Font.Background = 2"), S("DataLabels.AutoScaleFont = False")}) {
    expected.push_back("Chart.SeriesCollection(4)." + line);
  }
  for (const char* line :
       {"Chart.HasTitle = False", "Chart.HasLegend = True", "Chart.Axes(2, 1).HasTitle = False",
        "Chart.Axes(1, 1).HasTitle = False", "Chart.HasAxis(2) = True", "Chart.Axes(2, 1).HasTitle = True",
        "Chart.Axes(2, 1).AxisTitle.Text = \"Sum\"", "Chart.Axes(2, 1).AxisTitle.Font.Size = 10",
        "Chart.Axes(2, 1).AxisTitle.Font.Name = \"Arial\"", "Chart.Axes(2, 1).AxisTitle.Font.Color = 0",
        "Chart.Axes(2, 1).AxisTitle.Font.FontStyle = \"Bold\"",
        "Chart.Axes(2, 1).AxisTitle.AutoScaleFont = True",
        "Chart.Axes(2, 1).TickLabels.NumberFormatLinked = True",
        "Chart.Axes(2, 1).AxisTitle.Orientation = -4171"}) {
    expected.push_back(line);
  }
  for (int i = 1; i <= 3; ++i) {
    for (const char* line : {"Position = -4108", "AutoScaleFont = False", "Font.Name = \"Arial\"",
                             "Font.FontStyle = \"Regular\"", "Font.Size = 9", "Font.Color = 0"}) {
      expected.push_back("Chart.SeriesCollection(" + std::to_string(i) + ").DataLabels." + line);
    }
  }
  expected.push_back("Chart.HasLegend = False");
  Lines calls = test::WithoutValues(ChartCalls(BucketBook(definition)), {".Interior."});
  const auto legend =
      std::find_if(calls.begin(), calls.end(), [](const S& line) { return line.find(".Shapes") != S::npos; });
  EXPECT_EQ(Lines(calls.begin(), legend), expected);
  EXPECT_FALSE(With(calls, "AutoShapeType").size()) << "the keys of buckets are square";
  EXPECT_TRUE(With(calls, "\"Strategic Buckets Text\"").empty());
  EXPECT_TRUE(Messages().empty());

  SaveAndReopen();
  const auto series = Chart()->SeriesCollection();
  ASSERT_EQ(series->Count(), 4);
  const char* names[] = {"GROWTH", "New", "old", "Strategic Buckets"};
  for (int i = 1; i <= 4; ++i) {
    EXPECT_EQ(series->Item(i)->Name(), names[i - 1]);
    EXPECT_EQ(series->Item(i)->ChartType() == 52, i < 4) << "three columns and the marks";
  }
  EXPECT_EQ(series->Item(2)->Values(), (std::vector<runtime::Variant>{10.0, 5.0}));
  EXPECT_EQ(series->Item(4)->Values(), (std::vector<runtime::Variant>{120.0, 50.0}));
}

TEST_F(BucketChartTest, OlderVersionsDiffer) {
  Definition definition = BucketDefinition();
  definition.rest += kManual;
  Lines calls = ChartCalls(BucketBook(definition), "11.0");
  for (const S& line : With(calls, "XValues"))
    EXPECT_TRUE(line.ends_with(" = \"=VEX_ChartData!R1C5:R1C6\"")) << line;
  EXPECT_EQ(With(calls, ").Text = "), (Lines{"Chart.SeriesCollection(2).DataLabels(1).Text = \"Alpha\"",
                                             "Chart.SeriesCollection(2).DataLabels(2).Text = \"Alpha\"",
                                             "Chart.SeriesCollection(3).DataLabels(2).Text = \"Beta\""}))
      << "only where an item has a value";
  EXPECT_TRUE(With(calls, ".Shapes").empty());
  EXPECT_EQ(With(calls, "HasLegend"), Lines{"Chart.HasLegend = True"});

  // If there is a legend, the series of the buckets is removed from it, in a font in which all entries fit.
  calls = With(ChartCalls(), "Chart.Legend");
  ASSERT_GE(calls.size(), 3u);
  EXPECT_EQ(calls[0], "Chart.Legend.Font.Size = 1");
  EXPECT_EQ(calls[1], "Chart.Legend.LegendEntries(4).Delete");
  EXPECT_TRUE(calls[2].starts_with("Chart.Legend.Font.Size = ")) << calls[2];
  EXPECT_NE(calls[2], calls[0]);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(BucketChartTest, WithoutManualLabelsOnlyTheBucketsAreLabelled) {
  Definition definition = BucketDefinition();
  definition.rest += "<data-labels manual-labels=\"no\"/>";
  const Lines calls = ChartCalls(BucketBook(definition));
  EXPECT_TRUE(With(calls, "HasDataLabels").empty());
  for (const S& line : With(calls, "DataLabels"))
    EXPECT_TRUE(line.starts_with("Chart.SeriesCollection(4).")) << line;
  EXPECT_FALSE(With(calls, "ApplyDataLabels").empty());
}

TEST_F(BucketChartTest, LabelsThatLookLikeFormulasAreNames) {
  test::PlainBook book = BucketBook(BucketDefinition());
  auto& rows = book.Sheet("Data1").rows;
  rows[1][1] = S("=x");
  rows[2][1] = S("=\"y\"");
  rows[3][1] = S("=X");
  ChartCalls(book);
  EXPECT_TRUE(Messages().empty());
  SaveAndReopen();
  const auto series = Chart()->SeriesCollection();
  ASSERT_EQ(series->Count(), 4);
  EXPECT_EQ(series->Item(2)->Name(), "=x");
  EXPECT_EQ(series->Item(3)->Name(), "=\"y\"");
  EXPECT_TRUE(IsStrBuckChart(Chart()));
}

TEST_F(BucketChartTest, TheReferenceCanContainAtMost22Buckets) {
  for (const int buckets : {22, 23}) {
    test::PlainBook book = BucketBook(BucketDefinition());
    auto& rows = book.Sheet("Buckets").rows;
    rows.resize(3);
    for (int i = 1; i <= buckets; ++i) rows.push_back({"B" + std::to_string(i), 1.0});
    book.names = {{"VEX_SB1", "Buckets!$A$1:$B$" + std::to_string(buckets + 3)}};
    const Lines calls = With(ChartCalls(book), ".XValues = ");
    ASSERT_FALSE(calls.empty());
    EXPECT_EQ(calls[0], "Chart.SeriesCollection(1).XValues = \"=VEX_ChartData!$E$1:$" +
                            S(buckets == 22 ? "Z" : "[") + "$1\"");
    EXPECT_EQ(calls.size(), buckets == 22 ? 4u : 1u);
  }
  ASSERT_EQ(Messages().size(), 1u);
  EXPECT_TRUE(Messages()[0].starts_with("Brindle Plotsmith: PSChartBuilder.PopulateStrBuckChart\n"));
}

}  // namespace
}  // namespace plotsmith

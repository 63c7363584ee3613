#include "tests/support/ChartCallsTest.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

Definition PieDefinition(const S& rest) {
  Definition definition{"VEX_Chart1", "pie"};
  definition.series = "<series headings-in=\"none\"/>";
  definition.rest = rest;
  return definition;
}

class PieChartTest : public test::ChartCallsTest {
 protected:
  Lines Calls(const S& rest) { return ChartCalls(test::SalesBook({PieDefinition(rest)})); }
};

TEST_F(PieChartTest, OrderOfCalls) {
  const Lines expected = {"Chart.ChartArea.AutoScaleFont = False",
                          "Chart.SeriesCollection.NewSeries",
                          "Chart.SeriesCollection(1).XValues = \"=VEX_ChartData!R2C2:R3C2\"",
                          "Chart.SeriesCollection(1).Values = \"=VEX_ChartData!R2C3:R3C3\"",
                          "Chart.HasTitle = True",
                          "Chart.ChartTitle.Text = \"Sales\"",
                          "Chart.ChartType = 5",
                          "Chart.SeriesCollection(1).ApplyDataLabels(3)",
                          "Chart.SeriesCollection(1).DataLabels.Position = 5",
                          "Chart.SeriesCollection(1).DataLabels.AutoScaleFont = True",
                          "Chart.SeriesCollection(1).DataLabels.Font.Name = \"Arial\"",
                          "Chart.SeriesCollection(1).DataLabels.Font.FontStyle = \"Regular\"",
                          "Chart.SeriesCollection(1).DataLabels.Font.Size = 9",
                          "Chart.SeriesCollection(1).DataLabels.Font.Color = 0",
                          "Chart.ChartType = 70",
                          "Chart.HasLegend = True",
                          "Chart.Legend.Font.Name = \"Arial\"",
                          "Chart.Legend.Font.Size = 9",
                          "Chart.Legend.Font.FontStyle = \"Regular\"",
                          "Chart.Legend.Font.Color = 0",
                          "Chart.Legend.AutoScaleFont = \"True\"",
                          "Chart.Legend.Position = -4152"};
  EXPECT_EQ(
      Calls("<data-labels><data-label show=\"percentages\"/></data-labels>" + Settings({"3D", "exploded"}) +
            "<auto-persistence><persist property=\"legend-visibility\" value=\"show\"/></auto-persistence>"),
      expected);
  EXPECT_TRUE(Messages().empty());

  SaveAndReopen();
  const auto series = Chart()->SeriesCollection();
  ASSERT_EQ(series->Count(), 1);
  EXPECT_EQ(series->Item(1)->Values(), (std::vector<runtime::Variant>{18.0, 5.0}));
  EXPECT_EQ(Chart()->ChartType(), 70);
  EXPECT_EQ(series->Item(1)->DataLabels()->Type(), runtime::Variant(3));
}

TEST_F(PieChartTest, SettingsDetermineTheTypeAndLabelsNeedAPieFirst) {
  const std::pair<S, int> types[] = {{Settings({}), 5},
                                     {Settings({"3D"}), -4102},
                                     {Settings({"exploded"}), 69},
                                     {Settings({"3D", "exploded"}), 70},
                                     {Settings({"3D", "3D"}), 69},
                                     {Settings({"exploded", "exploded"}), 5},
                                     {Settings({"stacked", "3d"}), 5}};
  for (const auto& [settings, type] : types) {
    const S last = "Chart.ChartType = " + std::to_string(type);
    EXPECT_EQ(With(Calls(settings), "ChartType"), Lines{last}) << settings;
    const S both =
        "<data-labels><data-label show=\"percentages\"/><data-label show=\"values\"/></data-labels>";
    const Lines calls = Calls(both + settings);
    EXPECT_EQ(With(calls, "ChartType"), (Lines{"Chart.ChartType = 5", last}));
    EXPECT_EQ(With(calls, "ApplyDataLabels"), Lines{"Chart.SeriesCollection(1).ApplyDataLabels(2)"})
        << "values take precedence";
  }
  EXPECT_TRUE(With(Calls("<data-labels><data-label show=\"names\"/></data-labels>"), "DataLabels").empty());
  EXPECT_TRUE(Messages().empty());
}

TEST_F(PieChartTest, APieHasALegendUnlessItWasHidden) {
  const auto legend = [&](const S& visibility) {
    return With(Calls("<auto-persistence><persist property=\"legend-visibility\" value=\"" + visibility +
                      "\"/></auto-persistence>"),
                "Legend");
  };
  EXPECT_EQ(legend("auto"), Lines{"Chart.HasLegend = True"});
  EXPECT_EQ(legend(""), Lines{"Chart.HasLegend = True"});
  EXPECT_EQ(legend("hide"), Lines{"Chart.HasLegend = False"});
}

}  // namespace
}  // namespace plotsmith

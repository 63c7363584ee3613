#include <algorithm>

#include "builder/families/AbcChart.h"
#include "builder/state/BuilderVariables.h"
#include "common/Documents.h"
#include "common/RunVariables.h"
#include "tests/support/ChartCallsTest.h"
#include "xlsx/Worksheet.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

class AbcChartTest : public test::ChartCallsTest {
 protected:
  Lines ChartCalls(const Definition& definition, const S& version = "16.0") {
    return test::ChartCallsTest::ChartCalls(test::SalesBook({definition}), version);
  }
};

TEST_F(AbcChartTest, OrderOfCallsForABarChartWithEverything) {
  Definition definition{"VEX_Chart1", "bar"};
  definition.rest =
      "<axes><axis type=\"label\" label=\"Where\"/><axis type=\"value\" label=\"\"/><axis type=\"other\" "
      "label=\"x\"/><axis type=\"value\" label=\"How much\"/></axes><data-labels>"
      "<data-label show=\"percentages\"/><data-label show=\"values\"/></data-labels><dynamic-attributes>"
      "<attribute setting=\"3D\"/><attribute setting=\"stacked\"/></dynamic-attributes><auto-persistence>"
      "<persist property=\"legend-visibility\" value=\"show\"/><persist property=\"legend-position\" "
      "value=\"-4107\"/><persist property=\"legend-font-size\" value=\"8pt\"/>"
      "<persist property=\"legend-font-autoscale\" value=\"maybe\"/><persist property=\"label-font-color\" "
      "value=\"255\"/><persist property=\"ValueAxis-font-style\" value=\"\"/>"
      "<persist property=\"ValueAxis-font-size\" value=\"12\"/><persist property=\"valueaxis-font-name\" "
      "value=\"X\"/></auto-persistence>";
  const Lines expected = {
      "Chart.ChartArea.AutoScaleFont = False",
      "Chart.ChartType = 57",
      "Chart.SeriesCollection.NewSeries",
      "Chart.SeriesCollection(1).Name = \"=VEX_ChartData!$C$1\"",
      "Chart.SeriesCollection(1).XValues = \"=VEX_ChartData!R2C2:R3C2\"",
      "Chart.SeriesCollection(1).Values = \"=VEX_ChartData!R2C3:R3C3\"",
      "Chart.SeriesCollection.NewSeries",
      "Chart.SeriesCollection(2).Name = \"=VEX_ChartData!$D$1\"",
      "Chart.SeriesCollection(2).XValues = \"=VEX_ChartData!R2C2:R3C2\"",
      "Chart.SeriesCollection(2).Values = \"=VEX_ChartData!R2C4:R3C4\"",
      "Chart.HasTitle = True",
      "Chart.ChartTitle.Text = \"Sales\"",
      "Chart.HasLegend = True",
      "Chart.Axes(2, 1).HasTitle = False",
      "Chart.Axes(1, 1).HasTitle = False",
      "Chart.HasAxis(1) = True",
      "Chart.Axes(1, 1).HasTitle = True",
      "Chart.Axes(1, 1).AxisTitle.Text = \"Where\"",
      "Chart.Axes(1, 1).AxisTitle.Font.Size = 10",
      "Chart.Axes(1, 1).AxisTitle.Font.Name = \"Arial\"",
      "Chart.Axes(1, 1).AxisTitle.Font.Color = 0",
      "Chart.Axes(1, 1).AxisTitle.Font.FontStyle = \"Bold\"",
      "Chart.Axes(1, 1).AxisTitle.AutoScaleFont = True",
      "Chart.HasAxis(2) = True",
      "Chart.Axes(2, 1).HasTitle = True",
      "Chart.Axes(2, 1).AxisTitle.Text = \"How much\"",
      "Chart.Axes(2, 1).AxisTitle.Font.Size = 12",
      "Chart.Axes(2, 1).AxisTitle.Font.Name = \"Arial\"",
      "Chart.Axes(2, 1).AxisTitle.Font.Color = 0",
      "Chart.Axes(2, 1).AxisTitle.Font.FontStyle = \"Bold\"",
      "Chart.Axes(2, 1).AxisTitle.AutoScaleFont = True",
      "Chart.Axes(2, 1).TickLabels.NumberFormatLinked = True",
      "Chart.Axes(2, 1).AxisTitle.Orientation = -4128",
      "Chart.Axes(1, 1).AxisTitle.Orientation = -4171",
      "Chart.SeriesCollection(1).ApplyDataLabels(2)",
      "Chart.SeriesCollection(1).DataLabels.Position = -4108",
      "Chart.SeriesCollection(1).DataLabels.AutoScaleFont = True",
      "Chart.SeriesCollection(1).DataLabels.Font.Name = \"Arial\"",
      "Chart.SeriesCollection(1).DataLabels.Font.FontStyle = \"Regular\"",
      "Chart.SeriesCollection(1).DataLabels.Font.Size = 9",
      "Chart.SeriesCollection(1).DataLabels.Font.Color = \"255\"",
      "Chart.SeriesCollection(2).ApplyDataLabels(2)",
      "Chart.SeriesCollection(2).DataLabels.Position = -4108",
      "Chart.SeriesCollection(2).DataLabels.AutoScaleFont = True",
      "Chart.SeriesCollection(2).DataLabels.Font.Name = \"Arial\"",
      "Chart.SeriesCollection(2).DataLabels.Font.FontStyle = \"Regular\"",
      "Chart.SeriesCollection(2).DataLabels.Font.Size = 9",
      "Chart.SeriesCollection(2).DataLabels.Font.Color = \"255\"",
      "Chart.ChartType = 61",
      "Chart.HasLegend = True",
      "Chart.Legend.Font.Name = \"Arial\"",
      "Chart.Legend.Font.Size = 8",
      "Chart.Legend.Font.FontStyle = \"Regular\"",
      "Chart.Legend.Font.Color = 0",
      "Chart.Legend.AutoScaleFont = False",
      "Chart.Legend.Position = -4107",
  };
  EXPECT_EQ(ChartCalls(definition), expected);
  EXPECT_TRUE(Messages().empty());
}

TEST_F(AbcChartTest, AreaAndColumnChartsDiffer) {
  for (const char* type : {"area", "column"}) {
    Definition definition{"VEX_Chart1", type, "table-id=\"Data1\""};
    definition.series = "<series headings-in=\"none\"/>";
    definition.rest =
        "<axes><axis type=\"value\" label=\"V\"/><axis type=\"label\" label=\"L\"/></axes><auto-persistence>"
        "<persist property=\"legend-visibility\" value=\"hide\"/></auto-persistence>";
    const Lines calls = ChartCalls(definition, "11.0");
    const auto has = [&](const S& line) {
      return std::find(calls.begin(), calls.end(), line) != calls.end();
    };
    EXPECT_TRUE(has("Chart.SeriesCollection(1).Name = \"=VEX_ChartData!R1C3\"")) << "up to version 11";
    EXPECT_TRUE(has("Chart.HasTitle = False"));
    EXPECT_TRUE(has("Chart.Axes(2, 1).AxisTitle.Orientation = -4171"));
    EXPECT_TRUE(has("Chart.Axes(1, 1).AxisTitle.Orientation = -4128"));
    ASSERT_GE(calls.size(), 2u);
    EXPECT_EQ(calls[calls.size() - 2], type == S("area") ? "Chart.ChartType = 1" : "Chart.ChartType = 51");
    EXPECT_EQ(calls.back(), "Chart.HasLegend = False");
    EXPECT_EQ(std::count(journal_.begin(), journal_.end(), "Application.Interactive = False"), 2)
        << "a direct refresh disables user input, and the guard has tried that before";
  }
}

TEST_F(AbcChartTest, SettingsDetermineTheType) {
  const struct {
    S settings;
    int area, bar, column;  // the types
  } cases[] = {
      {Settings({}), 1, 57, 51},
      {Settings({"3D"}), -4098, 60, 54},
      {Settings({"stacked"}), 76, 58, 52},
      {Settings({"3D", "stacked"}), 78, 61, 55},
      {Settings({"stacked", "100%"}), 77, 59, 53},
      {Settings({"3D", "stacked", "100%"}), 79, 62, 56},
      // Settings that don't belong together.
      {Settings({"100%"}), 51, 51, 51},
      {Settings({"3D", "100%"}), 51, 51, 51},
      {Settings({"stacked", "stacked"}), 51, 51, 51},
      // No settings have these names; case counts.
      {Settings({"3d", "Stacked"}), 1, 57, 51},
  };
  for (const auto& c : cases) {
    for (const auto& [type, number] : {std::pair{"area", c.area}, {"bar", c.bar}, {"column", c.column}}) {
      Definition definition{"VEX_Chart1", type};
      definition.rest = c.settings;
      EXPECT_EQ(ChartCalls(definition).back(), "Chart.ChartType = " + std::to_string(number))
          << type << c.settings;
      EXPECT_TRUE(Messages().empty());
    }
  }
}

TEST_F(AbcChartTest, SeriesAfterThe78thColumnKeepThePreviousName) {
  test::PlainBook book = test::SalesBook({});
  Open(book);
  auto document = NewXMLDocument();
  ASSERT_TRUE(document.loadXML("<chart data-start-row=\"5\"/>"));
  mCategoryCount = 12;
  mSeriesCount = 77;
  Book().Tabs().Add(0)->SetName("VEX_ChartData");
  mChart = oWorkbook->Worksheets()->Item("Data1")->ChartObjects()->Add(0, 0, 100, 100)->Chart();
  journal_.clear();
  PopulateABCChart(document.documentElement());
  Lines names;
  std::copy_if(journal_.begin(), journal_.end(), std::back_inserter(names),
               [](const S& line) { return line.find(".Name = ") != S::npos; });
  ASSERT_EQ(names.size(), 77u);
  const std::pair<std::size_t, const char*> expected[] = {{0, "C"},   {23, "Z"},  {24, "AA"}, {49, "AZ"},
                                                          {50, "BA"}, {75, "BZ"}, {76, "BZ"}};
  for (const auto& [index, letters] : expected) {
    EXPECT_TRUE(names[index].ends_with("\"=VEX_ChartData!$" + S(letters) + "$5\"")) << names[index];
  }
}

}  // namespace
}  // namespace plotsmith

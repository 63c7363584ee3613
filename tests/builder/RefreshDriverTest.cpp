#include <algorithm>
#include <vector>

#include "builder/ChartRefreshDriver.h"
#include "common/PSConstants.h"
#include "common/RunVariables.h"
#include "controller/CPlotsmithController.h"
#include "tests/support/ChartTest.h"
#include "tests/support/Patterns.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

class RefreshDriverTest : public test::HostTest {
 protected:
  int Count(const S& line) const {
    return static_cast<int>(std::count(journal_.begin(), journal_.end(), line));
  }
  S Definitions() { return Cells("VEX_ChartDefinitions", 2, 1, 9, 1); }
  S ChartXml(int number) { return SavedPart("/xl/charts/chart" + std::to_string(number) + ".xml"); }
};

TEST_F(RefreshDriverTest, OneChartThatFailsDoesNotStopTheOthers) {
  Definition broken{"VEX_Chart1"}, unknown{"VEX_Chart2", "unknown"}, good{"VEX_Chart3"};
  broken.values = "<values><column name=\"Nowhere\"/></values>";
  Open(SalesBook({broken, unknown, good}));
  Refresh();
  ASSERT_EQ(Messages().size(), 2u);
  EXPECT_EQ(Messages()[1],
            "Brindle Plotsmith: Chart 'Name of VEX_Chart2' has become unavailable because it was changed to "
            "an unsupported chart type.");
  // The settings for calculation and screen, and the host's macros, in their order around the charts.
  std::vector<S> frame;
  std::copy_if(journal_.begin(), journal_.end(), std::back_inserter(frame),
               [](const S& line) { return line.starts_with("Application."); });
  EXPECT_EQ(frame, (std::vector<S>{"Application.Interactive = False", "Application.Interactive = True",
                                   "Application.Run(\"VEXEvents.VEXChartRefreshStarted\")",
                                   "Application.ScreenUpdating = False", "Application.Calculation = -4135",
                                   "Application.ScreenUpdating = False",
                                   "Application.Run(\"VEXEvents.VEXChartRefreshStarted\", \"VEX_Chart1\")",
                                   "Application.Run(\"VEXEvents.VEXChartRefreshStarted\", \"VEX_Chart2\")",
                                   "Application.Run(\"VEXEvents.VEXChartRefreshStarted\", \"VEX_Chart3\")",
                                   "Application.Calculation = -4105", "Application.ScreenUpdating = False",
                                   "Application.ScreenUpdating = True",
                                   "Application.Run(\"VEXEvents.VEXChartRefreshComplete\")"}));
  SaveAndReopen();
  EXPECT_NE(
      ChartXml(1).find("<a:pattFill prst=\"ltUpDiag\"><a:fgClr><a:srgbClr val=\"C0C0C0\"/></a:fgClr><a:bgClr>"
                       "<a:srgbClr val=\"FFFFFF\"/></a:bgClr></a:pattFill>"),
      S::npos)
      << ChartXml(1);
  EXPECT_NE(ChartXml(3).find("<c:ser>"), S::npos);
  EXPECT_NE(Definitions().find("chart-area-crosshatched=\"yes\""), S::npos);
}

TEST_F(RefreshDriverTest, AnUnavailableChartRecoversByItself) {
  PlainBook book = SalesBook({{"VEX_Chart1"}});
  Open(book);
  Refresh();
  SaveAndReopen();
  ASSERT_NE(ChartXml(1).find("<c:ser>"), S::npos);

  // The table loses its rows. The chart has no series, is crosshatched, and each refresh shows the message.
  book.Sheet("Data1").rows.resize(1);
  PlainBook emptied = book;
  emptied.Sheet("VEX_ChartDefinitions").rows[1] = {Cells("VEX_ChartDefinitions", 2, 1, 2, 1)};
  Open(emptied);
  for (int i = 1; i <= 2; ++i) {
    Refresh();
    ASSERT_EQ(Messages().size(), static_cast<std::size_t>(i));
    EXPECT_NE(Messages().back().find("its source table no longer exists"), S::npos);
    SaveAndReopen();
  }
  EXPECT_EQ(ChartXml(1).find("<c:ser>"), S::npos);
  EXPECT_NE(ChartXml(1).find("pattFill"), S::npos);
  const S definition = Cells("VEX_ChartDefinitions", 2, 1, 2, 1);
  EXPECT_NE(definition.find("chart-area-crosshatched=\"yes\""), S::npos);

  // The table gets its rows back, and meanwhile a person has filled the area.
  PlainBook again = SalesBook({{"VEX_Chart1"}});
  again.Sheet("VEX_ChartDefinitions").rows[1] = {definition};
  S chart = ChartXml(1);
  chart.replace(chart.find("<a:pattFill"), chart.find("</a:pattFill>") + 13 - chart.find("<a:pattFill"),
                "<a:solidFill><a:srgbClr val=\"FF0000\"/></a:solidFill>");
  again.Sheet("Charts").frames[0].chartXml = chart;
  Open(again);
  Refresh();
  SaveAndReopen();
  EXPECT_NE(ChartXml(1).find("<c:ser>"), S::npos);
  EXPECT_NE(ChartXml(1).find("<c:spPr><a:noFill/></c:spPr></c:chartSpace>"), S::npos);
  EXPECT_NE(Definitions().find("chart-area-crosshatched=\"no\""), S::npos);
}

TEST_F(RefreshDriverTest, OneTableRefreshesItsCharts) {
  Definition other{"VEX_Chart2", "column", "table-id=\"Data2\""};
  Definition bucket{"VEX_Chart3", "column", "table-id=\"Data2\" strategic-bucket-table-id=\"Data1\""};
  Definition otherCase{"VEX_Chart4", "column", "table-id=\"data1\""};
  PlainBook book = SalesBook({{"VEX_Chart1"}, other, bucket, otherCase});
  book.sheets.push_back(test::SalesSheet("Data2"));
  Open(book);
  S table = "Data1";
  CPlotsmithController().RefreshChartsForTable(host_, table);
  EXPECT_EQ(Count("Application.Run(\"VEXEvents.VEXChartRefreshStarted\")"), 1);
  EXPECT_EQ(Count("Application.Run(\"VEXEvents.VEXChartRefreshStarted\", \"VEX_Chart1\")"), 1);
  EXPECT_EQ(Count("Application.Run(\"VEXEvents.VEXChartRefreshStarted\", \"VEX_Chart2\")"), 0);
  EXPECT_EQ(Count("Application.Run(\"VEXEvents.VEXChartRefreshStarted\", \"VEX_Chart3\")"), 1);
  EXPECT_EQ(Count("Application.Run(\"VEXEvents.VEXChartRefreshStarted\", \"VEX_Chart4\")"), 0);
  EXPECT_EQ(Count("Application.Run(\"VEXEvents.VEXChartRefreshComplete\")"), 1);
  const S saved = Definitions();
  EXPECT_EQ(std::count(saved.begin(), saved.end(), '\n'), 7);
  EXPECT_EQ(test::CountOf(saved, "schema-version"), 4u)
      << "every definition is saved, not only those refreshed";
  EXPECT_TRUE(colTables) << "a direct refresh doesn't end the run";
  EXPECT_EQ(Count("Chart.PlotArea.Interior.ColorIndex = -4142"), 0) << "the charts aren't new";
}

TEST_F(RefreshDriverTest, ANewChartGetsABarePlotArea) {
  Open(SalesBook({{"VEX_Chart1"}}));
  lMethodType = method::kNew;
  RefreshChart("VEX_Chart1");
  EXPECT_EQ(Count("Chart.PlotArea.Interior.ColorIndex = -4142"), 1);
  EXPECT_EQ(Count("Chart.PlotArea.Border.LineStyle = 0"), 1);
  EXPECT_EQ(Count("Chart.ChartArea.AutoScaleFont = False"), 0);
}

}  // namespace
}  // namespace plotsmith

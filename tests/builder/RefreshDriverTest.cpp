#include <algorithm>

#include "builder/BuilderVariables.h"
#include "builder/ChartRefreshDriver.h"
#include "builder/PersistedProperties.h"
#include "common/CommonFunctions.h"
#include "common/RunVariables.h"
#include "controller/CPlotsmithController.h"
#include "metadata/MetadataStore.h"
#include "metadata/TableDefinitions.h"
#include "tests/support/HostTest.h"
#include "xlsx/Shape.h"
#include "xlsx/Worksheet.h"

namespace plotsmith {
namespace {

using test::Definition;
using test::PlainBook;
using test::SalesBook;
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
  // calculation, screen and the host's macros, in their order around the charts
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
  const S good = folder_ / "good.xlsx";
  Book().Save(good);

  // the table loses its rows: no series, crosshatch, the message at each refresh
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

  // and it gets them back, while somebody had painted the area
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

TEST_F(RefreshDriverTest, OneTableRefreshesWhatHangsOnIt) {
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
  std::size_t versions = 0;
  for (auto at = saved.find("schema-version"); at != S::npos; at = saved.find("schema-version", at + 1))
    ++versions;
  EXPECT_EQ(versions, 4u) << "every definition is saved, not only those refreshed";
  EXPECT_TRUE(colTables) << "nothing ends the run on this road";
  EXPECT_EQ(Count("Chart.PlotArea.Interior.ColorIndex = -4142"), 0) << "the charts aren't new";
}

TEST_F(RefreshDriverTest, ANewChartGetsABarePlotArea) {
  Open(SalesBook({{"VEX_Chart1"}}));
  lMethodType = 0;
  RefreshChart("VEX_Chart1");
  EXPECT_EQ(Count("Chart.PlotArea.Interior.ColorIndex = -4142"), 1);
  EXPECT_EQ(Count("Chart.PlotArea.Border.LineStyle = 0"), 1);
  EXPECT_EQ(Count("Chart.ChartArea.AutoScaleFont = False"), 0);
}

TEST_F(RefreshDriverTest, StoredPropertiesAndTheirDefaults) {
  auto document = NewXMLDocument();
  const auto read = [&](const S& persist) {
    EXPECT_TRUE(document.loadXML("<chart><auto-persistence>" + persist + "</auto-persistence></chart>"));
    RetrievePersistedProperties(document.documentElement());
  };
  read("<persist property=\"legend-left\" value=\"0\"/>");
  EXPECT_EQ(mLegendPosition, runtime::Variant(0)) << "a place beats a position, also at the edge";
  EXPECT_EQ(mLegendTop, kUnsetPlace);
  read(
      "<persist property=\"legend-position\" value=\"-4131\"/><persist property=\"bucket-label-font-color\" "
      "value=\"\"/>"
      "<persist property=\"label-font-name\" value=\"\"/><persist property=\"LabelAxis-font-autoscale\" "
      "value=\"0\"/>"
      "<persist property=\"LABEL-FONT-SIZE\" value=\"20\"/>");
  EXPECT_EQ(mLegendPosition, runtime::Variant("-4131"));
  EXPECT_EQ(mLegendLeft, kUnsetPlace) << "each call starts from the defaults";
  EXPECT_EQ(mBucketLabelFontColor, runtime::Variant(16777215));
  EXPECT_EQ(mLabelFontName, runtime::Variant("")) << "labels take an empty text as it stands";
  EXPECT_EQ(mLabelAxisFontAutoScale, runtime::Variant(false));
  EXPECT_EQ(mLabelFontSize, runtime::Variant(9));
  EXPECT_TRUE(mLabelFontBackgroundColor.IsEmpty());
  read(
      "<persist property=\"label-font-size\" value=\"11\"/><persist property=\"legend-top\" value=\"high\"/>"
      "<persist property=\"label-font-size\" value=\"12\"/>");
  EXPECT_EQ(mLabelFontSize, runtime::Variant(11.0)) << "what was read before the failure stays in force";
  EXPECT_EQ(Messages(),
            std::vector<S>{"Brindle Plotsmith: PSChartBuilder.RetrievePersistedProperties\nType mismatch"});
}

/// Puts a comment into a definition in memory, as a person does in the wizard, and builds the chart.
void Comment(const S& id, const S& text) {
  RetrieveTableDefinitions();
  RetrieveChartDefinitions();
  const auto document = colCharts->Item(id);
  auto chart = document.documentElement();
  if (auto old = chart.selectSingleNode("comment")) chart.removeChild(old);
  auto comment = document.createElement("comment");
  comment.appendChild(document.createTextNode(text));
  chart.appendChild(comment);
  PopulateChart(id);
  SaveChartDefinition(document);
  colTables = colCharts = nullptr;
}

TEST_F(RefreshDriverTest, CommentsComeAndGoInPieces) {
  S text;
  for (int i = 0; i < 40; ++i) text += "0123456789";
  text.replace(199, 2, "\xF0\x9D\x84\x9E");  // units 200 and 201: the cut goes through the character
  text.insert(300, "\n");
  Open(SalesBook({Definition{"VEX_Chart1"}}));
  Comment("VEX_Chart1", text);
  const auto calls = [&](const char* what) {
    return std::count_if(journal_.begin(), journal_.end(),
                         [&](const S& line) { return line.find(what) != S::npos; });
  };
  EXPECT_EQ(calls("Sheets(\"Charts\").Shapes.AddTextbox(1, 379, 5, 180, 120)"), 1);
  EXPECT_EQ(calls(".Insert("), 2);
  SaveAndReopen();
  const auto shapes = [&] { return oWorkbook->Worksheets()->Item("Charts")->Shapes(); };
  const auto box = [&] { return std::dynamic_pointer_cast<xlsx::Shape>(shapes()->Item(2).shared()); };
  ASSERT_EQ(shapes()->Count(), 2);
  EXPECT_EQ(box()->Type(), excel::msoTextBox);
  EXPECT_EQ(box()->AlternativeText(), "VEX_Chart1");
  EXPECT_EQ(box()->Text(), text);
  EXPECT_NEAR(box()->Left(), shapes()->Item(1)->Left() + shapes()->Item(1)->Width() - 5, 0.01);
  EXPECT_NEAR(box()->Top(), 5, 0.01);
  EXPECT_NEAR(box()->Width(), 180, 0.01);
  EXPECT_NEAR(box()->Height(), 120, 0.01);

  // what a person writes into the box is the comment from then on
  Refresh();
  SaveAndReopen();
  EXPECT_EQ(box()->Text(), text);
  box()->SetText(text + " and more");
  Refresh();
  SaveAndReopen();
  EXPECT_EQ(shapes()->Count(), 2);
  EXPECT_EQ(box()->Text(), text + " and more");
  EXPECT_NE(Cells("VEX_ChartDefinitions", 2, 1, 2, 1).find(" and more</comment>"), S::npos);

  // an empty comment takes the box away, and a box taken away the comment
  Comment("VEX_Chart1", "");
  SaveAndReopen();
  EXPECT_EQ(shapes()->Count(), 1);
  Comment("VEX_Chart1", "again");
  SaveAndReopen();
  shapes()->Item(2)->Delete();
  Refresh();
  SaveAndReopen();
  EXPECT_EQ(shapes()->Count(), 1);
  EXPECT_EQ(Cells("VEX_ChartDefinitions", 2, 1, 2, 1).find("<comment"), S::npos);
}

}  // namespace
}  // namespace plotsmith

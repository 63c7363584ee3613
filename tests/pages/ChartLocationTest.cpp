
#include "tests/support/FamilyBooks.h"
#include "tests/support/Files.h"
#include "tests/support/PagesTest.h"
#include "tests/support/RunCommand.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

class ChartLocationTest : public PagesTest {};

const S kToLocation = NewChart(1) + "press cmdNext; page frmPSChartLocation; ";
const S kNewBesideOthers = "press cmdNew; " + kToLocation;

PlainBook WithSheets(std::initializer_list<const char*> names, const S& state = "") {
  PlainBook book = SalesBook({});
  for (const char* name : names) {
    book.sheets.push_back({name});
    book.sheets.back().state = state;
  }
  return book;
}

TEST_F(ChartLocationTest, StatesAndDefaults) {
  const S existing = "look off txtSheet cmdNext; ", fresh = "look off cboSheet cmdNext; ",
          fixed = "look off optTargetSheet(0) txtSheet optTargetSheet(1) cboSheet cmdNext; ";
  PlainBook secondActive = SalesBook({});
  secondActive.workbookExtra = "<bookViews><workbookView activeTab=\"1\"/></bookViews>";
  const std::pair<PlainBook, S> cases[] = {
      {SalesBook({}), kToLocation + existing +
                          "expect optTargetSheet(1).Value yes; expect cboSheet.List Data1|Charts; expect "
                          "cboSheet.Text Data1; expect txtSheet.Text Chart1; expect txtName.Text Chart1"},
      {SalesBook({}),
       kToLocation + "choose optTargetSheet(0); " + fresh + "choose optTargetSheet(1); " + existing},
      {secondActive, kToLocation + "expect cboSheet.Text Data1"},
      {WithSheets({"A"}), kToLocation + "expect cboSheet.List Data1|Charts|A"},
      {WithSheets({"A"}, "hidden"), kToLocation + "expect cboSheet.List Data1|Charts"},
      {WithSheets({"A"}, "veryHidden"), kToLocation + "expect cboSheet.List Data1|Charts"},
      {WithSheets({"CHART1"}), kToLocation + "expect txtSheet.Text \"Chart1 (2)\""},
      {WithSheets({"chart1", "Chart1 (2)"}), kToLocation + "expect txtSheet.Text \"Chart1 (3)\""},
      {WithSheets({"chart1"}, "veryHidden"), kToLocation + "expect txtSheet.Text \"Chart1 (2)\""},
      {SalesBook({}),
       kToLocation + "choose optTargetSheet(0); type txtSheet \" Mine \"; press cmdBack; press cmdNext; " +
           fresh + "expect optTargetSheet(0).Value yes; expect txtSheet.Text Mine"},
      {SalesBook({}), kToLocation +
                          "choose cboSheet Charts; type txtName Own; press cmdBack; press cmdNext; " +
                          existing + "expect cboSheet.Text Charts; expect txtName.Text Own"},
      {SalesBook({}), NewChart(1) + "type txtTitle Title; press cmdNext; expect txtName.Text Title"},
      {BookOfCharts({{"Charts", "a"}}),
       ModifyChart() + "press cmdNext; " + fixed +
           "expect cboSheet.Text Charts; expect optTargetSheet(1).Value yes; expect "
           "txtName.Text a; expect txtSheet.Text \"\""},
      {BookOfCharts({{"Charts", "a", "Data1", "title=\"T\""}}),
       ModifyChart() + "press cmdNext; " + fixed + "expect txtName.Text T"},
  };
  for (const auto& [book, script] : cases) EXPECT_EQ(Play(book, script), "") << script;
  EXPECT_EQ(Play(SalesBook({}), kToLocation + "press cmdHelp; look default cmdFinish"), "");
  EXPECT_EQ(helpTopics_, std::vector{8});
}

TEST_F(ChartLocationTest, MessagesMoveTheFocusAndStoreNothing) {
  const S nameInUse = "Chart name is already in use. Please enter a different name for the chart.";
  const S newSheet = "choose optTargetSheet(0); type txtSheet ";
  const struct {
    S script, message, focus;
  } cases[] = {
      {kNewBesideOthers + "type txtName \" \"", "Please provide a name for the chart", "txtName"},
      {kNewBesideOthers + "type txtName \"\"; clear cboSheet", "Please provide a name for the chart",
       "txtName"},
      {kNewBesideOthers + "type txtName A", nameInUse, "txtName"},
      {kNewBesideOthers + "clear cboSheet", "Please select a sheet from the dropdown", "cboSheet"},
      {kNewBesideOthers + newSheet + "\" \"", "Please provide a name for the new worksheet", "txtSheet"},
      {kNewBesideOthers + newSheet + "charts",
       "Worksheet name is already in use. Please enter a different name for the worksheet.", "txtSheet"},
      {kNewBesideOthers + newSheet + "a:b",
       "Invalid worksheet name. Please enter a valid name for the worksheet.", "txtSheet"},
      {ModifyChart() + "press cmdNext; type txtName \"\"", "Please provide a name for the chart", "txtName"},
      // The page is checked before it is shown.
      {"press cmdNew; " + NewChart(1) + "type txtTitle A", nameInUse, "txtName"},
  };
  for (const auto& [script, message, focus] : cases) {
    Open(BookOfCharts({{"Charts", "a"}}));
    const S before = Cells("VEX_ChartDefinitions", 1, 1, 4, 1);
    EXPECT_EQ(Play(script + "; press cmdFinish; expect message \"" + message +
                   "\"; page frmPSChartLocation; look focus " + focus),
              "");
    EXPECT_EQ(ActiveSheet(), "Data1");
    EXPECT_EQ(Book().Worksheets()->Count(), 3);
    EXPECT_EQ(Shapes("Charts"), "3 VEX_Chart1\n");
    EXPECT_EQ(Cells("VEX_ChartDefinitions", 1, 1, 4, 1), before);
  }
}

TEST_F(ChartLocationTest, FinishPutsTheChartOnItsSheet) {
  const PlainBook book = BookOfCharts({{"Charts", "a"}, {"Charts", "b"}, {"Hidden", "c"}});
  struct Case {
    S script;
    int row;        ///< The row of the definition.
    S name, sheet;  ///< Values in the definition.
    S active, shapesOn, shapes;
  };
  const S onCharts = "3 VEX_Chart1\n3 VEX_Chart2\n";
  const Case cases[] = {
      {kNewBesideOthers + "type txtName \" New \"; choose cboSheet Charts; press cmdFinish; page none", 5,
       "New", "Charts", "Charts", "Charts", onCharts + "3 VEX_Chart4\n"},
      {kNewBesideOthers + "choose optTargetSheet(0); type txtSheet \" Mine \"; enter; page none", 5, "Chart4",
       "Mine", "Mine", "Mine", "3 VEX_Chart4\n"},
      {"press cmdNew; " + NewChart(3) + "press cmdFinish; page none", 5, "Chart4", "Data1", "Data1", "Data1",
       "3 VEX_Chart4\n"},
      // An existing chart may take the name of another one.
      {ModifyChart(1) + "press cmdNext; type txtName B; press cmdFinish; page none", 2, "B", "Charts",
       "Charts", "Charts", onCharts},
      // The list has no hidden sheets, so the definition contains the first sheet until the next run corrects
      // it.
      {ModifyChart(3) + "press cmdNext; expect cboSheet.Text Data1; press cmdFinish; page none", 4, "c",
       "Data1", "Data1", "Hidden", "3 VEX_Chart3\n"},
  };
  for (const auto& [script, row, name, sheet, active, shapesOn, shapes] : cases) {
    EXPECT_EQ(Play(book, script), "") << script;
    const S stored = Stored(row);
    EXPECT_NE(stored.find(" name=\"" + name + "\" "), S::npos) << stored;
    EXPECT_NE(stored.find(" chart-worksheet=\"" + sheet + "\" "), S::npos) << stored;
    EXPECT_EQ(ActiveSheet(), active) << script;
    EXPECT_EQ(Shapes(shapesOn), shapes) << script;
  }
  EXPECT_EQ(Play(book, kNewBesideOthers + "choose optTargetSheet(0); press cmdFinish; page none"), "");
  SaveAndReopen();
  const S sheet = SavedPart("/xl/worksheets/sheet5.xml");
  EXPECT_NE(sheet.find("showGridLines=\"0\""), S::npos) << sheet;
  EXPECT_NE(sheet.find("showRowColHeaders=\"0\""), S::npos) << sheet;
}

TEST_F(ChartLocationTest, LeavingAnyPageLeavesTheWorkbookAsItWas) {
  const S path = folder_ / "book.xlsx";
  BucketBook(BucketDefinition()).Write(path);
  const S before = BytesOf(path);
  const S half = "press cmdNew\nselect grdTables Data1\nchoose optType(",
          typed = ")\npress cmdNext\ntype txtTitle T";
  const S pages[] = {"select grdCharts #1",
                     "press cmdNew\nselect grdTables Data1",
                     half + "0" + typed,
                     half + "3" + typed,
                     half + "4" + typed,
                     half + "5" + typed,
                     half + "1" + typed + "\npress cmdNext\nchoose optTargetSheet(0)\ntype txtSheet Mine",
                     "select grdCharts #1\npress cmdModify\ntype txtTitle T\npress cmdNext\ntype txtName N",
                     "select grdCharts #1\npress cmdCopy\ntype txtTitle T\npress cmdBack\npress cmdBack"};
  for (const S& page : pages) {
    for (const S leave :
         {"\npress cmdCancel\npage none", "\nclose\npage none", "\nescape\npage none", "\n"}) {
      const auto result = RunCommand({"wizard", path, "--script", "-"}, page + leave);
      EXPECT_EQ(std::to_string(result.code) + result.out + result.err, "0") << page << leave;
      EXPECT_EQ(BytesOf(path), before) << page << leave;
    }
  }
}

}  // namespace
}  // namespace plotsmith

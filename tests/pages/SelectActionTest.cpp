#include "tests/support/PagesTest.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

class SelectActionTest : public PagesTest {};

TEST_F(SelectActionTest, ButtonsFollowTheSelection) {
  PlainBook book = BookOfCharts({{"Charts", "beta"},
                                 {"Charts", "Alpha"},
                                 {"Hidden", "hidden"},
                                 {"Very", "very"},
                                 {"Charts", "orphan", "Data9"},
                                 {"Charts", "Zeta", "Data2"}});
  book.sheets.push_back(SalesSheet("Data2"));
  book.sheets.back().state = "hidden";
  const S none = "cmdModify cmdCopy cmdDelete cmdGoToChart cmdGoToTable";
  const std::pair<S, S> cases[] = {
      {"", none},
      {"Alpha", ""},
      {"hidden", "cmdGoToChart"},
      {"very", ""},
      {"orphan", "cmdModify cmdCopy cmdGoToTable"},
      {"Zeta", "cmdGoToTable"},
      {"Alpha beta", "cmdModify cmdCopy cmdGoToChart cmdGoToTable"},
      {"#1 #2 #3 #4 #5 #6", "cmdModify cmdCopy cmdGoToChart cmdGoToTable"},
  };
  Open(book);
  for (const auto& [rows, off] : cases) {
    EXPECT_EQ(Play("look off " + none + "; select grdCharts " + rows + "; look off " + off), "");
  }
  EXPECT_EQ(Play("look grdCharts Chart Name,Type,Chart Worksheet,Table Worksheet|Alpha,column,Charts,Data1|"
                 "beta,column,Charts,Data1|hidden,column,Hidden,Data1|orphan,column,Charts,[Deleted]|"
                 "very,column,Very,Data1|Zeta,column,Charts,Data2; press cmdHelp; look default cmdNew"),
            "");
  EXPECT_EQ(helpTopics_, std::vector{1});
  // Excel doesn't allow this sheet name, which the list shows for a deleted table.
  book.sheets.push_back({"[Deleted]"});
  Open(book);
  EXPECT_EQ(Play("select grdCharts orphan; look off cmdGoToTable; press cmdModify; expect message "
                 "\"Invalid procedure call or argument\"; expect message \"The table used by this chart no "
                 "longer exists in this workbook. You must select a "
                 "different table to continue.\"; page frmPSSelectTable; look focus grdTables"),
            "");
}

TEST_F(SelectActionTest, EachButtonHasItsEffect) {
  const PlainBook book =
      BookOfCharts({{"Charts", "beta"}, {"Charts", "Alpha"}, {"Charts", "orphan", "Data9"}});
  const struct {
    S script, active;
  } cases[] = {
      {"select grdCharts Alpha; press cmdGoToChart; page frmPSSelectAction", "Charts"},
      {"select grdCharts Alpha; press cmdGoToChart; press cmdGoToTable; page frmPSSelectAction", "Data1"},
      {"double grdCharts beta; page frmPSLayoutABC; press cmdBack; press cmdBack; page frmPSSelectAction; "
       "expect grdCharts.Selected \"\"",
       "Data1"},
      {"double grdCharts orphan; page frmPSSelectAction", "Data1"},
      {"select grdCharts beta; press cmdCopy; page frmPSLayoutABC; press cmdBack; page frmPSSelectTable",
       "Data1"},
      {"press cmdNew; page frmPSSelectTable; expect grdTables.Selected \"\"; press cmdBack; page "
       "frmPSSelectAction",
       "Data1"},
      {"press cmdCancel; page none", "Data1"},
      {"escape; page none", "Data1"},
  };
  for (const auto& [script, active] : cases) {
    EXPECT_EQ(Play(book, script), "");
    EXPECT_EQ(ActiveSheet(), active) << script;
  }
}

TEST_F(SelectActionTest, CopiesHaveANameOfTheirOwn) {
  const struct {
    std::vector<S> names;
    S source, copy;
  } cases[] = {
      {{"Sales"}, "Sales", "Copy of Sales"},
      {{"Sales", "COPY OF SALES"}, "Sales", "Copy (1) of Sales"},
      {{"Sales", "Copy of Sales", "Copy (1) of sales"}, "Sales", "Copy (2) of Sales"},
      {{"Copy of Sales", "Copy of Copy of Sales"}, "\"Copy of Sales\"", "Copy (1) of Copy of Sales"},
  };
  for (const auto& [names, source, copy] : cases) {
    std::vector<PlacedChart> charts;
    for (const S& name : names) charts.push_back({"Charts", name});
    EXPECT_EQ(
        Play(BookOfCharts(charts), "select grdCharts " + source +
                                       "; press cmdCopy; press cmdNext; page "
                                       "frmPSChartLocation; expect txtName.Text \"" +
                                       copy +
                                       "\"; expect cboSheet.Text Charts; expect optTargetSheet(1).Value yes; "
                                       "press cmdFinish; page none"),
        "");
    const S id = "VEX_Chart" + std::to_string(names.size() + 1);
    const S stored = Stored(static_cast<int>(names.size()) + 2);
    EXPECT_NE(stored.find(" id=\"" + id + "\" name=\"" + copy + "\" "), S::npos) << stored;
    EXPECT_TRUE(Shapes("Charts").ends_with("3 " + id + "\n")) << Shapes("Charts");
  }
}

TEST_F(SelectActionTest, DeleteTakesChartsAndTheirComments) {
  PlainBook book = BookOfCharts({{"Charts", "a"}, {"Other", "b"}, {"Charts", "c"}});
  // A drawing of the user also has the id.
  book.Sheet("Charts").extraAnchors =
      "<xdr:twoCellAnchor><xdr:from><xdr:col>0</xdr:col><xdr:colOff>0</xdr:colOff><xdr:row>60"
      "</xdr:row><xdr:rowOff>0</xdr:rowOff></xdr:from><xdr:to><xdr:col>2</xdr:col><xdr:colOff>0"
      "</xdr:colOff><xdr:row>62</xdr:row><xdr:rowOff>0</xdr:rowOff></xdr:to><xdr:sp><xdr:nvSpPr>"
      "<xdr:cNvPr id=\"90\" name=\"Oval\" descr=\"VEX_Chart1\"/><xdr:cNvSpPr/></xdr:nvSpPr>"
      "<xdr:spPr/></xdr:sp><xdr:clientData/></xdr:twoCellAnchor>";
  const S one = "Are you sure you want to delete this chart?\\n\\nClick 'OK' to delete or 'Cancel' to abort.";
  const S several =
      "Are you sure you want to delete these charts?\\n\\nClick 'OK' to delete or 'Cancel' to abort.";
  struct Case {
    S script, onCharts, onOther;
  };
  const S oval = "1 VEX_Chart1\n", a = "3 VEX_Chart1\n", b = "3 VEX_Chart2\n", c = "3 VEX_Chart3\n",
          noteA = "17 VEX_Chart1\n", noteB = "17 VEX_Chart2\n";
  const Case cases[] = {
      {"answer cancel; select grdCharts a; press cmdDelete; expect question \"" + one +
           "\"; page frmPSSelectAction; expect grdCharts.Selected a",
       a + c + oval + noteA, b + noteB},
      {"answer ok; select grdCharts a; press cmdDelete; expect question \"" + one +
           "\"; page frmPSSelectAction; expect grdCharts.Rows 3; expect grdCharts.Selected \"\"",
       c + oval, b + noteB},
      {"answer ok; select grdCharts a b; press cmdDelete; expect question \"" + several +
           "\"; page frmPSSelectAction; look grdCharts Chart Name,Type,Chart Worksheet,Table Worksheet|"
           "c,column,Charts,Data1",
       c + oval, ""},
      {"answer ok; select grdCharts a b c; press cmdDelete; page frmPSSelectTable; expect cmdBack.Enabled no",
       oval, ""},
  };
  for (const auto& [script, onCharts, onOther] : cases) {
    Open(book);
    for (const int row : {1, 2}) {
      EXPECT_EQ(Play(ModifyChart(row) + "type txtComment Note; press cmdFinish; page none"), "");
    }
    EXPECT_EQ(Play(script), "");
    EXPECT_EQ(Shapes("Charts"), onCharts);
    EXPECT_EQ(Shapes("Other"), onOther);
  }
}

}  // namespace
}  // namespace plotsmith

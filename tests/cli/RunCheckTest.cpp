#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <vector>

#include "runtime/Strings.h"
#include "tests/support/FamilyBooks.h"
#include "tests/support/Files.h"
#include "tests/support/VerbsTest.h"

namespace plotsmith::cli {
namespace {

using namespace test;
using S = std::string;
using List = std::vector<S>;

const S kDefinitions = "/xl/worksheets/sheet3.xml";
const S kDrawingPart = "/xl/drawings/drawing2.xml";
const S kChartPart = "/xl/charts/chart1.xml";

/// Tests the messages on stderr with which writing commands report what happens to a person's work.
class RunCheckTest : public VerbsTest {
 protected:
  /// Writes a workbook with these texts in the rows of the definitions, and with a chart for VEX_Chart1.
  void WriteRows(const List& rows) {
    PlainBook book = SalesBook({{"VEX_Chart1"}});
    book.sheets.pop_back();
    book.AddDefinitions(rows);
    Write(book);
  }
  /// Runs a refresh and checks that its exit code fits to its messages.
  S Refresh(const List& options = {}) {
    const CommandResult result = RunCommand(Joined({"refresh", path_}, options));
    EXPECT_EQ(result.code, result.err.empty() ? 0 : 1) << result.err;
    return result.err;
  }
  void Edit(const S& part, const S& from, const S& to) {
    EditPart(path_, part, [&](S& text) {
      ASSERT_NE(text.find(from), S::npos) << from;
      text = runtime::Replace(text, from, to);
    });
  }

  S NothingToRefresh() const {
    return "plotsmith: \"" + path_ + "\" has no charts of Plotsmith, so nothing was refreshed.\n";
  }

  const S path_ = folder_ / "book.xlsx";
};

const S kStray =
    "plotsmith: Charts: A chart here has the alternative text 'VEX_Chart1', but no definition has this id; a "
    "new chart could get the same id. Delete the chart, or clear its alternative text.\n";

/// Returns a line about the first definition of a sales workbook.
S Line(const S& sentence, const S& place = "VEX_ChartDefinitions!A2") {
  return "plotsmith: " + place + " (chart 'Name of VEX_Chart1'): " + sentence + "\n";
}

TEST_F(RunCheckTest, NothingIsWrittenIfADefinitionWouldBeLost) {
  const S good = Definition{"VEX_Chart1"}.Xml();
  const S named = " (chart 'Name of VEX_Chart1'): ";
  const struct {
    List rows;
    S place, sentence;
    int charts;  ///< The number of charts that are left when the row is dropped.
  } cases[] = {
      {{runtime::Replace(good, "Name of", "This & that"), good},
       "A2: ",
       "The text is not well-formed XML (not well-formed (invalid token) in line 1, character 36)",
       1},
      {{good, "<charts/>"}, "A3: ", "The root element is 'charts' and not 'chart'", 1},
      {{runtime::Replace(good, " id=\"VEX_Chart1\"", "")}, "A2" + named, "The definition has no 'id'", 0},
      {{good, good}, "A3" + named, "The id 'VEX_Chart1' is already used by VEX_ChartDefinitions!A2", 1},
      {{runtime::Replace(good, "id=\"VEX_Chart1\"", "id=\"VEX_Chart7\"")},
       "A2" + named,
       "No chart has the alternative text 'VEX_Chart7'; there is a chart with 'VEX_Chart1'",
       0}};
  for (const auto& row : cases) {
    WriteRows(row.rows);
    const S before = BytesOf(path_), line = "plotsmith: VEX_ChartDefinitions!" + row.place + row.sentence;
    for (const List& verb : {List{"refresh", path_}, List{"delete", path_, "VEX_Chart1"},
                             List{"new", path_, "--table", "Data1", "--type", "pie"},
                             List{"rename-columns", path_, "--table", "Data1", "Amount=Sum"},
                             List{"wizard", path_, "--script", "-"}}) {
      const CommandResult refused = RunCommand(verb);
      EXPECT_EQ(refused.code, 3) << verb[0];
      EXPECT_EQ(refused.err,
                line +
                    ".\nplotsmith: nothing was changed, because 1 definition would be lost; correct "
                    "this, or use --drop-broken.\n");
      EXPECT_EQ(BytesOf(path_), before) << verb[0];
    }
    const S noCharts = row.charts == 0 ? kStray + NothingToRefresh() : "";
    EXPECT_EQ(Refresh({"--drop-broken"}), line + "; the row was dropped.\n" + noCharts);
    EXPECT_EQ(RunCommand({"check", path_}).code, 1 - row.charts) << RunCommand({"check", path_}).out;
    EXPECT_EQ(Charts(path_).find("VEX_Chart1") != S::npos, row.charts == 1) << Charts(path_);
    EXPECT_EQ(Refresh(), noCharts);
  }
}

TEST_F(RunCheckTest, AMissingDrawnChartLosesItsDefinition) {
  Write(SalesBook({{"VEX_Chart1"}, {"VEX_Chart2", "pie"}}));
  EXPECT_EQ(Refresh(), "");
  Edit(kDrawingPart, "descr=\"VEX_Chart1\"", "descr=\"Mine\"");
  EXPECT_EQ(
      Refresh(),
      Line("No chart has the alternative text 'VEX_Chart1'; there are charts with 'Mine' and 'VEX_Chart2'; "
           "the chart was drawn and no longer exists, so its definition was removed."));
  EXPECT_TRUE(Charts(path_).starts_with("VEX_Chart2")) << Charts(path_);
  EXPECT_EQ(Refresh(), "");
}

TEST_F(RunCheckTest, AGroupedChartIsNotLost) {
  Write(SalesBook({{"VEX_Chart1"}}));
  EXPECT_EQ(Refresh(), "");
  const S group =
      "<xdr:grpSp><xdr:nvGrpSpPr><xdr:cNvPr id=\"9\" name=\"Group 9\"/><xdr:cNvGrpSpPr/></xdr:nvGrpSpPr>"
      "<xdr:grpSpPr/>";
  Edit(kDrawingPart, "<xdr:graphicFrame macro", group + "<xdr:graphicFrame macro");
  Edit(kDrawingPart, "</xdr:graphicFrame>", "</xdr:graphicFrame></xdr:grpSp>");
  const CommandResult refused = RunCommand({"refresh", path_});
  EXPECT_EQ(refused.code, 3);
  EXPECT_TRUE(refused.err.starts_with(
      Line("The chart with the alternative text 'VEX_Chart1' is in a group of shapes on the sheet 'Charts', "
           "where it isn't found; ungroup it.")))
      << refused.err;
  Edit(kDrawingPart, group, "");
  Edit(kDrawingPart, "</xdr:grpSp>", "");
  EXPECT_EQ(Refresh(), "") << "the definition is still there";
}

TEST_F(RunCheckTest, UnreadRowsAndUnknownNamesAreReported) {
  Definition odd{"VEX_Chart1"};
  odd.attributes += " colour=\"red\"";
  odd.rest = Settings({"staked"});
  WriteRows({"Notes", odd.Xml(), "", odd.Xml()});
  const S settings = "A column chart has no setting 'staked'; it can have 3D, stacked and 100%.";
  const S colour =
      "The element 'chart' has an unknown attribute 'colour'; there are id, name, title, type, table-id, "
      "strategic-bucket-table-id and number-format.";
  EXPECT_EQ(
      Refresh({"--drop-broken"}),
      "plotsmith: VEX_ChartDefinitions!A2: The text is not well-formed XML (syntax error in line 1, "
      "character 1); the row was dropped.\n" +
          Line(colour) + Line(settings) +
          Line("This definition is never read, because VEX_ChartDefinitions!A3 is blank and ends the list.",
               "VEX_ChartDefinitions!A4"))
      << "the cells are those after the run";

  Write(SalesBook({{"VEX_Chart1", "line"}}));
  EXPECT_EQ(Refresh(),
            "Brindle Plotsmith: PSChartBuilder.PopulateChart\nUnknown chart type\n" +
                Line("The attribute 'type' has an unknown value 'line'; it can be area, bar, column, "
                     "pie, bubble or strategic bucket."));
}

TEST_F(RunCheckTest, ChangesOfDefinitionsAndOfChartsAreDistinguished) {
  Definition definition{"VEX_Chart1"};
  definition.rest = "<axes><axis type=\"value\" label=\"Euro\" sticky=\"no\"/></axes>";
  PlainBook book = SalesBook({definition});
  book.sheets.push_back(SalesSheet("Data2"));
  Write(book);
  EXPECT_EQ(Refresh(), "");
  EXPECT_EQ(Refresh(), "") << "a drawn chart is read back as it was stored";
  const auto edit = [&] {
    Edit(kDefinitions, "title=\"Sales\"", "title=\"Costs\"");
    Edit(kDefinitions, "type=\"column\"", "type=\"bar\"");
    Edit(kDefinitions, "label=\"Euro\"", "label=\"Dollar\"");
    Edit(kDefinitions, "\"legend-visibility\" value=\"show\"", "\"legend-visibility\" value=\"hide\"");
  };
  edit();
  const S kept =
      Line(
          "The title is 'Sales' on the chart and 'Costs' in the definition; the one on the chart was kept.") +
      Line("The type is 'column' on the chart and 'bar' in the definition; the one on the chart was kept.") +
      Line(
          "The title of the value axis is 'Euro' on the chart and 'Dollar' in the definition; the one on the "
          "chart was kept.") +
      Line(
          "The visibility of the legend is 'show' on the chart and 'hide' in the definition; the one on the "
          "chart was kept.");
  const S checked = RunCommand({"check", path_}).out;
  EXPECT_NE(checked.find("  VEX_ChartDefinitions!A2: The type is 'column' on the chart and 'bar' in the "
                         "definition; the next refresh keeps the one on the chart.\n"),
            S::npos)
      << checked;
  const auto json = nlohmann::json::parse(RunCommand({"check", path_, "--json"}).out);
  EXPECT_EQ(json["definitions"][0]["findings"][0]["severity"], "keeps-chart");
  EXPECT_EQ(
      RunCommand({"refresh", path_, "--table", "Data2", "-o", folder_ / "other.xlsx"}).err,
      kept + "plotsmith: no chart of \"" + path_ + "\" uses the table \"Data2\", so nothing was refreshed.\n")
      << "all definitions are stored, whichever table is refreshed";
  EXPECT_EQ(Refresh(), kept);
  EXPECT_EQ(Refresh(), "");
  Edit(kChartPart, "?><c:chartSpace",
       "?>\r\n<c:chartSpace");  // A spreadsheet program has saved the workbook.
  edit();
  EXPECT_EQ(Refresh(), "") << "a user may have changed the chart";
  Edit(kDefinitions, "title=\"Sales\"", "title=\"Costs\"");
  Edit(kDefinitions, "ps-chart-schema-version=\"2\"", "");
  EXPECT_EQ(
      Refresh(),
      Line(
          "The title is 'Sales' on the chart and 'Costs' in the definition; the one on the chart was kept."));
}

TEST_F(RunCheckTest, AVerbThatChangesDefinitionsReportsTheRemainingProblems) {
  Definition definition{"VEX_Chart1"};
  definition.rest = "<axes><axis type=\"value\" label=\"Amount\" sticky=\"no\"/></axes>";
  Write(SalesBook({definition}));
  EXPECT_EQ(Refresh(), "");
  Edit(kDefinitions, "title=\"Sales\"", "title=\"Costs\" colour=\"red\"");
  Edit("/xl/worksheets/sheet1.xml", "Amount", "Turnover");
  const S colour = Line(
      "The element 'chart' has an unknown attribute 'colour'; there are id, name, title, type, table-id, "
      "strategic-bucket-table-id and number-format.");
  EXPECT_EQ(
      RunCommand({"rename-columns", path_, "--table", "Data1", "Amount=Turnover"}).err,
      Line(
          "The title is 'Sales' on the chart and 'Costs' in the definition; the one on the chart was kept.") +
          colour)
      << "the axis title has its new name from the command";

  Definition typeless{"VEX_Chart1", "line"};
  typeless.attributes += " colour=\"red\"";
  Write(SalesBook({typeless, {"VEX_Chart2", "line"}}));
  EXPECT_EQ(RunCommand({"modify", path_, "VEX_Chart1", "--type", "pie"}).err,
            runtime::Replace(colour, "Name of VEX_Chart1", "Sales"))
      << "the type has changed, and the other chart isn't drawn";
}

TEST_F(RunCheckTest, CellsThatMakeAWrongPictureAreReported) {
  const RawCell formula{"><f>1+1</f><v></v></c>"}, error{" t=\"e\"><v>#N/A</v></c>"};
  const auto refresh = [&](const auto& change, const Definition& definition = {}) {
    PlainBook book = SalesBook({definition});
    change(book.Sheet("Data1").rows);
    Write(book);
    return Refresh();
  };
  using Rows = std::vector<PlainRow>;
  const S calculate = "which count as blank; calculate and save the workbook in a spreadsheet program.";
  EXPECT_EQ(refresh([&](Rows& rows) { rows[2][2] = rows[3][2] = rows[2][3] = formula; }),
            Line("The column 'Amount' has 2 formulas without a result, the first one here, " + calculate,
                 "Data1!C3"))
      << "no chart of Cost is drawn";
  EXPECT_EQ(
      refresh([&](Rows& rows) { rows[0][2] = formula; }),
      "Brindle Plotsmith: Chart 'Name of VEX_Chart1' has become unavailable because column 'Amount'\nin "
      "table 'Data1' is missing or contains invalid data.\n" +
          Line("The table 'Data1' has no column 'Amount' for 'values'; it has Region, Product and Cost.") +
          Line("The heading is a formula without a result, so its column is ignored; calculate and save the "
               "workbook in a spreadsheet program.",
               "Data1!C1"));
  const S start =
      "The column 'Amount' isn't a number column, which 'values' needs, because this cell contains ";
  EXPECT_EQ(refresh([&](Rows& rows) { rows[2][2] = S("5 pcs"); }),
            Line(start + "the text '5 pcs', which counts as 0.", "Data1!C3"));
  const S said = start + "the error #N/A, which counts as 0.";
  EXPECT_EQ(refresh([&](Rows& rows) { rows[4][2] = error; }), Line(said, "Data1!C5"));
  EXPECT_NE(Charts(path_).find("  ok\n    Data1!C5: " + said + "\n"), S::npos) << Charts(path_);
  Definition forgotten;
  forgotten.values = "";
  EXPECT_EQ(refresh([](Rows&) {}, forgotten),
            Line("A column chart needs the element 'values', unless its headings are in columns."));
}

TEST_F(RunCheckTest, CommonProblemsOfSeveralChartsAreOneLine) {
  PlainBook book = SalesBook({{"VEX_Chart1"}, {"VEX_Chart2", "pie"}});
  book.Sheet("Data1").rows[2][2] = S("5 pcs");
  Write(book);
  EXPECT_EQ(Refresh(),
            "plotsmith: Data1!C3 (charts 'Name of VEX_Chart1' and 'Name of VEX_Chart2'): The column 'Amount' "
            "isn't a number column, which 'values' needs, because this cell contains the text '5 pcs', which "
            "counts as 0.\n");
}

TEST_F(RunCheckTest, APossiblyRenamedColumnIsReported) {
  PlainBook book = SalesBook({{"VEX_Chart1"}});
  Write(book);
  EXPECT_EQ(Refresh(), "");
  Edit("/xl/worksheets/sheet1.xml", "Amount", "Turnover");
  const S missing =
      "Brindle Plotsmith: Chart 'Name of VEX_Chart1' has become unavailable because column "
      "'Amount'\nin table 'Data1' is missing or contains invalid data.\n";
  EXPECT_EQ(
      Refresh(),
      missing +
          Line("The table 'Data1' has no column 'Amount' for 'values'; it has Region, Product, Turnover "
               "and Cost; 'Turnover' is in its place. If that is its new name, plotsmith rename-columns BOOK "
               "--table Data1 'Amount=Turnover' renames it in the charts."));
  const S drawnAt = "&lt;values&gt;&lt;column name=\"Amount\" worksheet-column-number=\"3\"";
  Edit(kDefinitions, drawnAt, runtime::Replace(drawnAt, "\"3\"", "\"C\""));
  EXPECT_EQ(Refresh(), missing + Line("The table 'Data1' has no column 'Amount' for 'values'; it has Region, "
                                      "Product, Turnover and Cost."))
      << "the number was garbled";
  const CommandResult renamed = RunCommand({"rename-columns", path_, "--table", "Data1", "Amount=Turnover"});
  EXPECT_EQ(renamed.code, 0) << renamed.err;
  EXPECT_EQ(Refresh(), "");
  Edit("/xl/worksheets/sheet1.xml", "Turnover", "Product");
  const S taken = Refresh();
  EXPECT_NE(taken.find("; it has Region, Product, Product and Cost.\n"), S::npos)
      << taken << "a column that the chart already has isn't a new name";

  Definition other{"VEX_Chart2"};
  other.values = "<values><column name=\"Cost\"/></values>";
  Write(SalesBook({{"VEX_Chart1"}, other}));
  EXPECT_EQ(Refresh(), "");
  Edit("/xl/worksheets/sheet1.xml", "Cost", "Rest");
  Edit("/xl/worksheets/sheet1.xml", "Amount", "Cost");
  EXPECT_NE(Refresh().find("; it has Region, Product, Cost and Rest.\n"), S::npos)
      << "a column of another chart isn't a new name";
}

TEST_F(RunCheckTest, ABubbleWithoutALabelPreventsTheLegend) {
  const S start = "The column 'Group' has ";
  const S again =
      ", and then switch on the chart's own legend in a spreadsheet program; the next refresh draws it.";
  const struct {
    S label, sentence;
  } cases[] = {
      {"",
       "no label here for the bubble 'C', so the bubble isn't shown and the chart has no drawn legend; fill "
       "in the cell"},
      {"g|x", "a label here with the character '|', so the chart has no drawn legend; remove the character"}};
  for (const auto& [label, sentence] : cases) {
    Write(BubbleBook({{"a", "g", 1, 2, 3}, {"b", "h", 2, 3, 4}, {"C", "h", 1, 1, 1}, {"c", label, 3, 4, 5}},
                     BubbleDefinition()));
    EXPECT_EQ(Refresh(), Line(start + sentence + again, "Data1!B5"));
    EXPECT_EQ(Refresh({"--host-version", "11"}), "") << "this version uses the chart's own legend";
  }
  PlainBook plain = BubbleBook({{"a", "g", 1, 2, 3}, {"b", "", 2, 3, 4}}, BubbleDefinition());
  plain.Sheet("VEX_ChartDefinitions").rows.resize(1);
  plain.Sheet("Charts").frames.clear();
  Write(plain);
  const CommandResult made =
      RunCommand({"new", path_, "--table", "Data1", "--type", "bubble", "--series", "Group"});
  EXPECT_EQ(made.code, 1);
  EXPECT_NE(made.err.find("Data1!B3 (chart"), S::npos)
      << made.err << "its definition has no numbers of columns yet";
  Write(BubbleBook({{"a", "g", 1, 2, 3}, {"b", "", 2, 3, 4}}, BubbleDefinition()));
  Edit("/xl/worksheets/sheet1.xml", "Size", "Weight");
  EXPECT_EQ(Refresh().find("Data1!B3"), S::npos) << "a chart that can't be drawn has other problems";
  Write(BubbleBook({{"a", "g", 1, 2, 3}, {"b", "h", 2, 3, 4}, {"c", "g|h", 3, 4, 5}}, BubbleDefinition()));
  EXPECT_EQ(Refresh(), "") << "each piece has a colour";
}

TEST_F(RunCheckTest, TooManyBucketsAreReported) {
  const auto write = [&](int count) {
    PlainBook book = BucketBook(BucketDefinition());
    auto& rows = book.Sheet("Buckets").rows;
    rows.resize(3);
    for (int i = 1; i <= count; ++i) rows.push_back({"b" + std::to_string(i), 1.0 * i});
    book.Sheet("Data1").rows[1][2] = S("b1");
    book.names = {{"VEX_SB1", "Buckets!$A$1:$B$" + std::to_string(count + 3)}};
    Write(book);
  };
  const auto start = [](int count) {
    return "The bucket table 'VEX_SB1' has " + std::to_string(count) +
           " buckets, but a chart can show the names of at most 22, so ";
  };
  const S breaks =
      "its drawing stops and leaves a column chart without a legend; keep at most 22 buckets, draw "
      "the chart again with plotsmith modify BOOK CHART --type 'strategic bucket', and switch on its legend "
      "in a spreadsheet program; the next refresh draws the legend.";
  const S misnamed = "the columns have wrong names; keep at most 22 buckets.";
  const S error =
      "Brindle Plotsmith: PSChartBuilder.PopulateStrBuckChart\nUnable to set the XValues property of the "
      "Series class\n";
  const std::pair<int, S> cases[] = {{22, ""},
                                     {23, error + Line(start(23) + breaks)},
                                     {28, error + Line(start(28) + breaks)},
                                     {29, Line(start(29) + misnamed)},
                                     {54, Line(start(54) + misnamed)},
                                     {55, error + Line(start(55) + breaks)}};
  for (const auto& [count, said] : cases) {
    write(count);
    EXPECT_EQ(Refresh({"--host-version", "11"}), "") << count;
    write(count);
    EXPECT_EQ(Refresh(), said) << count;
  }
  EXPECT_EQ(Refresh(), Line("The type is 'column' on the chart and 'strategic bucket' in the definition; the "
                            "one on the chart was kept.") +
                           Line(start(55) + breaks));
  EXPECT_EQ(Refresh(), Line(start(55) + breaks)) << "as long as the problem exists";
  Edit("/xl/workbook.xml", "$B$58", "$B$9");
  const CommandResult mended = RunCommand({"modify", path_, "VEX_Chart1", "--type", "strategic bucket"});
  EXPECT_EQ(mended.code, 0) << mended.err;
  EXPECT_EQ(Refresh(), "");
  EXPECT_NE(Charts(path_).find("strategic bucket chart"), S::npos) << Charts(path_);
}

TEST_F(RunCheckTest, AmbiguousChartsPreventNewAndDeletedCharts) {
  const S drop =
      "plotsmith: nothing was changed, because charts could be confused with each other; correct this, or "
      "use --drop-broken.\n";
  const S second =
      "plotsmith: More: A second chart here has the alternative text 'VEX_Chart1', and only the first one, "
      "on the sheet 'Charts', is refreshed. Delete the second chart, or clear its alternative text.\n";
  const S unread =
      Line("This definition is never read, because VEX_ChartDefinitions!A3 is blank and ends the list.",
           "VEX_ChartDefinitions!A4");
  PlainBook bare = SalesBook({{"VEX_Chart1"}});
  bare.sheets.pop_back();
  PlainBook twice = SalesBook({{"VEX_Chart1"}});
  twice.sheets.push_back({.name = "More", .rows = {}, .frames = {{"VEX_Chart1"}}});
  PlainBook gap = SalesBook({{"VEX_Chart1"}});
  gap.sheets.pop_back();
  const S good = Definition{"VEX_Chart1"}.Xml();
  gap.AddDefinitions({good, "", runtime::Replace(good, "id=\"VEX_Chart1\"", "id=\"VEX_Chart2\"")});
  const std::pair<PlainBook, S> cases[] = {{bare, kStray}, {twice, second}, {gap, unread}};
  for (const auto& [book, said] : cases) {
    Write(book);
    const S before = BytesOf(path_);
    for (const List& verb : {List{"new", path_, "--table", "Data1", "--type", "pie"},
                             List{"delete", path_, "VEX_Chart1"}, List{"wizard", path_, "--script", "-"}}) {
      const CommandResult refused = RunCommand(verb);
      EXPECT_EQ(refused.code, 3) << said;
      EXPECT_EQ(refused.err, said + drop);
      EXPECT_EQ(BytesOf(path_), before);
    }
    EXPECT_EQ(Refresh(), said + (said == kStray ? NothingToRefresh() : ""));
  }
}

TEST_F(RunCheckTest, AWorkbookWithoutDefinitionsHasNoOtherMessages) {
  PlainBook book;
  book.sheets.push_back(SalesSheet("Sheet1"));
  book.sheets[0].rows[1][2] = RawCell{"><f>1+1</f><v></v></c>"};
  book.sheets[0].frames = {{"", "", 0, 0, 8, 18}, {"VEX_Table1"}};
  Write(book);
  EXPECT_EQ(Refresh(), NothingToRefresh());
}

}  // namespace
}  // namespace plotsmith::cli

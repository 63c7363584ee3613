#include <filesystem>
#include <gtest/gtest.h>
#include <vector>

#include "tests/support/Files.h"
#include "tests/support/Patterns.h"
#include "tests/support/VerbsTest.h"

namespace plotsmith::cli {
namespace {

using namespace test;
using S = std::string;

/// Verbs on a workbook with two charts, one of which has a table without a label column.
class ChartVerbsTest : public VerbsTest {
 protected:
  ChartVerbsTest() {
    Definition first{"VEX_Chart1"}, second{"VEX_Chart2", "pie", "table-id=\"Data2\" title=\"\""};
    second.series = "<series headings-in=\"none\"/>";
    PlainBook book = SalesBook({first, second});
    PlainSheet numbers{"Data2"};
    numbers.rows = {{S("Amount"), S("Cost")}, {1.0, 2.0}};
    book.sheets.push_back(numbers);
    book.sheets.push_back(SalesSheet("Data3"));
    book_ = Write(book);
    // This draws the first chart and shows a message for the second one.
    EXPECT_EQ(RunCommand({"refresh", book_}).code, 1);
  }
  /// Runs a verb on the workbook with another output file.
  CommandResult Verb(std::vector<S> arguments) {
    arguments.insert(arguments.begin() + 1, book_);
    std::filesystem::remove(out_);
    return RunCommand(Joined(arguments, {"-o", out_}));
  }

  S book_;
  S out_ = folder_ / "out.xlsx";
};

TEST_F(ChartVerbsTest, ATableWithoutTypesHasAReason) {
  const std::pair<PlainRow, S> cases[] = {{{2019.0, 7.0}, "label"}, {{S("East"), S("-")}, "number"}};
  for (const auto& [row, missing] : cases) {
    PlainBook book;
    book.sheets.push_back({"Data1", {{S("Year"), S("Sales")}, row}});
    EXPECT_EQ(RunCommand({"new", Write(book), "--table", "Data1", "--type", "bar"}).err,
              "plotsmith: the table 'Data1' doesn't allow the type 'bar'; it has no " + missing +
                  " column, and every type needs at least one label column and one number column.\n");
  }
}

TEST_F(ChartVerbsTest, MissingThingsAreReportedAndNothingIsSaved) {
  const std::pair<std::vector<S>, S> cases[] = {
      // tables, types and charts
      {{"new", "--table", "Sales", "--type", "bar"}, "no table 'Sales'; there are Data1, Data2 and Data3."},
      {{"new", "--table", "data1", "--type", "bar"}, "no table 'data1'; there are Data1, Data2 and Data3."},
      {{"new", "--table", "Data1", "--type", "donut"},
       "no type 'donut'; there are area, bar, column, pie, bubble and strategic bucket."},
      {{"new", "--table", "Data1", "--type", "strategic bucket"},
       "the table 'Data1' doesn't allow the type 'strategic bucket'; there are area, bar, column, pie and "
       "bubble."},
      {{"modify", "Chart9"},
       "no chart 'Chart9'; there are VEX_Chart1 'Name of VEX_Chart1' and VEX_Chart2 'Name of VEX_Chart2'."},
      {{"copy", "vex_chart1"},
       "no chart 'vex_chart1'; there are VEX_Chart1 'Name of VEX_Chart1' and VEX_Chart2 'Name of "
       "VEX_Chart2'."},
      {{"delete", "VEX_Chart1", "Chart9"},
       "no chart 'Chart9'; there are VEX_Chart1 'Name of VEX_Chart1' and VEX_Chart2 'Name of VEX_Chart2'."},
      // columns and sheets
      {{"modify", "VEX_Chart1", "--values", "Region"},
       "no column 'Region' for --values; there are Amount and Cost; 'Region' is a label column, since "
       "Data1!A2 holds the text 'East'."},
      {{"modify", "VEX_Chart1", "--category-columns", "Amount", "Gain", "--no-series"},
       "no column 'Gain' for --category-columns; there are Amount and Cost."},
      {{"new", "--table", "Data1", "--type", "bar", "--sheet", "Sheet1"},
       "no sheet 'Sheet1' for --sheet; there are Data1, Charts, Data2 and Data3."},
      // options that a type or a layout doesn't have
      {{"modify", "VEX_Chart1", "--sizes", "Cost"},
       "a column chart has no --sizes; it has --title, --categories, --category-columns, --series, "
       "--series-columns, --no-series, --values, --x-axis, --y-axis, --number-format, --labels, --set, "
       "--unset and --comment."},
      {{"modify", "VEX_Chart1", "--type", "pie", "--x-axis", "a"},
       "a pie chart has no --x-axis; it has --title, --categories, --values, --number-format, --labels, "
       "--set, --unset and --comment."},
      {{"modify", "VEX_Chart1", "--set", "exploded"},
       "a column chart has no setting 'exploded'; it has 3D, stacked and 100%."},
      {{"modify", "VEX_Chart1", "--type", "area", "--labels", "names"},
       "an area chart has no labels 'names'; it has values and none."},
      {{"modify", "VEX_Chart1", "--set", "100%"}, "--set 100% needs --set stacked."},
      {{"modify", "VEX_Chart1", "--series-columns", "Cost", "--values", "Cost"},
       "--values needs categories and series that aren't number columns."},
      {{"modify", "VEX_Chart1", "--set", "3D", "--unset", "3D"}, "3D can't be both set and unset."},
      {{"modify", "VEX_Chart1", "--title", S(256, 'x')}, "--title takes at most 255 characters."},
      {{"modify", "VEX_Chart1", "--name", "a\x02"}, "--name accepts no control characters."},
      {{"modify", "VEX_Chart1", "--number-format", "\x01"}, "--number-format accepts no control characters."},
      {{"new", "--table", "Data1", "--type", "bar", "--new-sheet", "vex_chartdata"},
       "--new-sheet can't be 'VEX_ChartData', which is one of Plotsmith's own sheets."},
      // messages of the pages
      {{"modify", "VEX_Chart1", "--number-format", "0\""},
       "The requested number format is not supported by Excel."},
      {{"modify", "VEX_Chart1", "--categories", "Product"},
       "You cannot use the same entry for the 'Horizontal (X-axis) Shows'\nand 'A Color Represents' "
       "selections."},
      {{"new", "--table", "Data1", "--type", "bar", "--name", "name OF vex_chart1"},
       "Chart name is already in use. Please enter a different name for the chart."},
      {{"new", "--table", "Data1", "--type", "bar", "--new-sheet", "DATA2"},
       "Worksheet name is already in use. Please enter a different name for the worksheet."},
      {{"modify", "VEX_Chart2", "--title", "x"},
       "Table 'Data2' is not currently valid for this chart. You must select a different table to continue."},
  };
  const S before = BytesOf(book_);
  for (const auto& [arguments, sentence] : cases) {
    const CommandResult result = Verb(arguments);
    EXPECT_EQ(result.code, 2) << sentence;
    EXPECT_EQ(result.err, "plotsmith: " + sentence + "\n");
    EXPECT_EQ(result.out, "");
    EXPECT_FALSE(std::filesystem::exists(out_)) << sentence;
    EXPECT_EQ(BytesOf(book_), before) << sentence;
  }
  for (const std::vector<S>& arguments : {std::vector<S>{"new", "--table", "Data1"},
                                          {"new", "--type", "bar"},
                                          {"modify"},
                                          {"delete"},
                                          {"modify", "VEX_Chart1", "--sheet", "Data2"},
                                          {"copy", "VEX_Chart1", "--sheet", "A", "--new-sheet", "B"},
                                          {"modify", "VEX_Chart1", "--series", "A", "--no-series"}})
    EXPECT_EQ(Verb(arguments).code, 2);
}

TEST_F(ChartVerbsTest, ModifyChangesOnlyTheGivenSettings) {
  const auto definition = [&](const std::vector<S>& options) {
    const CommandResult result = Verb(Joined({"modify", "NAME of vex_chart1"}, options));
    EXPECT_EQ(result.code, 0) << result.err;
    return ReplaceMatches(StoredDefinition(out_, "VEX_Chart1"),
                          " worksheet-column-number=\"[0-9]\"|<auto-persistence>.*</auto-persistence>", "");
  };
  const S rows = "<categories headings-in=\"rows\"><column name=\"Region\"/></categories>",
          series = "<series headings-in=\"rows\"><column name=\"Product\"/></series>",
          values = "<values><column name=\"Amount\"/></values>";
  const std::pair<std::vector<S>, std::vector<S>> cases[] = {
      {{}, {"name=\"Sales\" type=\"column\" table-id=\"Data1\" title=\"Sales\"", rows + series + values}},
      {{"--name", "Turnover"}, {"name=\"Turnover\"", "title=\"Sales\"", rows + series + values}},
      {{"--title", ""}, {"name=\"Name of VEX_Chart1\"", "title=\"\"", rows + series + values}},
      {{"--values", "cost"}, {rows + series + "<values><column name=\"Cost\"/></values>"}},
      {{"--no-series"}, {rows + "<series headings-in=\"none\"/>" + values}},
      {{"--category-columns", "Cost", "Amount", "--no-series"},
       {"<categories headings-in=\"columns\"><column name=\"Amount\"/><column name=\"Cost\"/></categories>"
        "<series headings-in=\"none\"/>"}},
      {{"--series-columns", "Cost"},
       {rows + "<series headings-in=\"columns\"><column name=\"Cost\"/></series>"}},
      {{"--set", "3D", "stacked"}, {"<attribute setting=\"3D\"/><attribute setting=\"stacked\"/>"}},
      {{"--labels", "values"}, {"<data-label show=\"values\"/>"}},
      {{"--number-format", "0.0"}, {"number-format=\"0.0\"", rows + series + values}},
      {{"--y-axis", "Sum"}, {"<axis type=\"value\" label=\"Sum\" sticky=\"yes\"/>"}},
      {{"--comment", "two\nlines"}, {"<comment>two\nlines</comment>"}},
      {{"--type", "bar"}, {"type=\"bar\"", rows + series + values}},
      {{"--type", "pie", "--set", "exploded", "--labels", "values"},
       {"type=\"pie\"", rows + "<series headings-in=\"none\"/>" + values, "<data-label show=\"values\"/>",
        "<attribute setting=\"exploded\"/>"}},
      {{"--table", "Data3"}, {"table-id=\"Data3\"", rows + series + values}},
  };
  for (const auto& [options, pieces] : cases) {
    const S text = definition(options);
    for (const S& piece : pieces) EXPECT_NE(text.find(piece), S::npos) << piece << '\n' << text;
  }
}

TEST_F(ChartVerbsTest, AChartWithAnUnsuitableTableGetsAnotherOne) {
  const CommandResult result = Verb({"modify", "VEX_Chart2", "--table", "Data1", "--values", "Cost"});
  EXPECT_EQ(result.code, 0) << result.err;
  const S definition = StoredDefinition(out_, "VEX_Chart2");
  EXPECT_NE(definition.find("table-id=\"Data1\""), S::npos) << definition;
  EXPECT_NE(definition.find("<values><column name=\"Cost\"/></values>"), S::npos) << definition;
  const S script =
      RunCommand({"modify", book_, "VEX_Chart2", "--table", "Data1", "--values", "Cost", "--print-script"})
          .out;
  EXPECT_NE(script.find("expect message \"Table 'Data2' is not currently valid"), S::npos) << script;
  EXPECT_EQ(Wizard(book_, script, {"-o", folder_ / "played.xlsx"}).code, 0);
  EXPECT_EQ(BytesOf(folder_ / "played.xlsx"), BytesOf(out_));
}

TEST_F(ChartVerbsTest, OptionsReachTheirControlsFromAnyLayout) {
  Definition columns{"VEX_Chart1"};
  columns.series = "<series headings-in=\"columns\"><column name=\"Amount\"/></series>";
  columns.values = "";
  PlainBook book = SalesBook({columns});
  const S twoNumbers = Write(book, "two.xlsx");
  for (PlainRow& row : book.Sheet("Data1").rows) row.pop_back();
  const S oneNumber = Write(book, "one.xlsx");
  const S byColumn = "<categories headings-in=\"columns\"><column name=\"Amount\"/></categories>",
          byProduct = "<series headings-in=\"rows\"><column name=\"Product\"/></series>";
  const struct {
    S book;
    std::vector<S> options;
    S piece;
  } cases[] = {
      // A click on the only number column deselects the series.
      {oneNumber,
       {"--series", "Product", "--values", "Amount"},
       byProduct + "<values><column name=\"Amount\"/></values>"},
      // Number columns can't be the categories while they are the series.
      {twoNumbers,
       {"--category-columns", "Amount", "--no-series"},
       byColumn + "<series headings-in=\"none\"/>"},
      {twoNumbers, {"--category-columns", "Amount", "--series", "Product"}, byColumn + byProduct},
  };
  for (const auto& item : cases) {
    book_ = item.book;
    const CommandResult result = Verb(Joined({"modify", "VEX_Chart1"}, item.options));
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_NE(StoredDefinition(out_, "VEX_Chart1").find(item.piece), S::npos)
        << StoredDefinition(out_, "VEX_Chart1");
  }
  EXPECT_EQ(
      Verb({"modify", "VEX_Chart1", "--category-columns", "Amount"}).err,
      "plotsmith: --category-columns needs series that aren't number columns, by --series or --no-series.\n");
}

TEST_F(ChartVerbsTest, AChartOfAnUnknownTypeGetsAnotherOne) {
  book_ = Write(SalesBook({{"VEX_Chart1", "unknown"}}));
  EXPECT_EQ(Verb({"modify", "VEX_Chart1", "--title", "x"}).err, "plotsmith: Please select a chart type.\n");
  EXPECT_EQ(Verb({"modify", "VEX_Chart1", "--table", "Data1"}).err,
            "plotsmith: Please select a chart type.\n");
  EXPECT_EQ(Verb({"modify", "VEX_Chart1", "--type", "pie"}).code, 0);
  EXPECT_NE(Charts(out_).find("pie chart on sheet Charts"), S::npos) << Charts(out_);
}

TEST_F(ChartVerbsTest, AChartWithoutATableCanOnlyBeDeleted) {
  PlainBook book = SalesBook({{"VEX_Chart1", "column", "table-id=\"Gone\""}});
  book_ = Write(book, "gone.xlsx");
  const S sentence =
      "plotsmith: the table of the chart 'VEX_Chart1' no longer exists, so the chart can only be deleted.\n";
  EXPECT_EQ(Verb({"modify", "VEX_Chart1", "--table", "Data1"}).err, sentence);
  EXPECT_EQ(Verb({"copy", "VEX_Chart1"}).err, sentence);
  EXPECT_EQ(Verb({"delete", "VEX_Chart1"}).code, 0);
  EXPECT_EQ(Charts(out_), "There are no charts of Plotsmith.\n");
  book_ = out_;
  out_ = folder_ / "again.xlsx";
  EXPECT_EQ(Verb({"delete", "VEX_Chart1"}).err,
            "plotsmith: no chart 'VEX_Chart1'; the workbook has no charts.\n");
  EXPECT_EQ(Verb({"modify", "VEX_Chart1"}).err,
            "plotsmith: no chart 'VEX_Chart1'; the workbook has no charts.\n");
}

TEST_F(ChartVerbsTest, CopiesAreMadeOnTheGivenSheet) {
  const std::pair<std::vector<S>, S> cases[] = {
      {{}, "VEX_Chart3  \"Copy of Name of VEX_Chart1\"\n  column chart on sheet Charts,"},
      {{"--name", "Twin", "--sheet", "data2"}, "VEX_Chart3  \"Twin\"\n  column chart on sheet Data2,"},
      {{"--new-sheet", "Mine", "--type", "area"},
       "VEX_Chart3  \"Copy of Name of VEX_Chart1\"\n  area chart on sheet Mine,"},
  };
  for (const auto& [options, line] : cases) {
    const CommandResult result = Verb(Joined({"copy", "VEX_Chart1"}, options));
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_NE(Charts(out_).find(line), S::npos) << Charts(out_);
    EXPECT_NE(Charts(out_).find("VEX_Chart1  \"Name of VEX_Chart1\"\n  column chart on sheet Charts,"),
              S::npos);
  }
}

TEST_F(ChartVerbsTest, ACopyHasANameThatFitsItsBox) {
  const std::pair<S, S> names[] = {{"Sales&amp;#10;by region", "Copy of Sales by region"},
                                   {S(255, 'x'), "Copy of " + S(247, 'x')}};
  for (const auto& [name, copy] : names) {
    const S book = Write(SalesBook({{"VEX_Chart1"}}));
    EditPart(book, "/xl/worksheets/sheet3.xml", [&](S& sheet) {
      const S old = "Name of VEX_Chart1";
      sheet.replace(sheet.find(old), old.size(), name);
    });
    EXPECT_EQ(RunCommand({"refresh", book}).code, 0);
    const CommandResult result = RunCommand({"copy", book, "VEX_Chart1", "-o", out_});
    EXPECT_EQ(result.err, "") << name;
    EXPECT_NE(Charts(out_).find("VEX_Chart2  \"" + copy + "\"\n"), S::npos) << Charts(out_);
  }
}

TEST_F(ChartVerbsTest, DeletesSeveralCharts) {
  EXPECT_EQ(Verb({"delete", "VEX_Chart2", "name of VEX_Chart1", "VEX_Chart2"}).code, 0);
  EXPECT_EQ(Charts(out_), "There are no charts of Plotsmith.\n");
  EXPECT_EQ(Verb({"delete", "VEX_Chart2"}).code, 0);
  EXPECT_TRUE(Charts(out_).starts_with("VEX_Chart1"));
  EXPECT_EQ(RunCommand({"delete", book_, "VEX_Chart2", "--print-script"}).out,
            "page frmPSSelectAction\nselect grdCharts \"Name of VEX_Chart2\"\nanswer ok\npress cmdDelete\n"
            "page frmPSSelectAction\n");
}

TEST_F(ChartVerbsTest, AmbiguousRowsAreSelectedByNumber) {
  PlainBook book = SalesBook({{"VEX_Chart1"}, {"VEX_Chart2"}, {"VEX_Chart3"}});
  book_ = Write(book);
  for (const auto& [chart, name] :
       std::vector<std::pair<S, S>>{{"VEX_Chart1", "Same"}, {"VEX_Chart2", "#2"}, {"VEX_Chart3", "Same"}})
    EXPECT_EQ(RunCommand({"modify", book_, chart, "--name", name}).code, 0) << name;
  const auto selected = [&](const S& chart) {
    const S script = RunCommand({"delete", book_, chart, "--print-script"}).out;
    return ReplaceMatches(script, "(.|\n)*(select .*)\nanswer(.|\n)*", "$2");
  };
  EXPECT_EQ(selected("VEX_Chart2"), "select grdCharts #1");
  EXPECT_EQ(selected("VEX_Chart1"), "select grdCharts #2");
  EXPECT_EQ(selected("VEX_Chart3"), "select grdCharts #3");
  const S sentence =
      "several charts have the name 'same': VEX_Chart1 and VEX_Chart3; use the id of one of them.\n";
  EXPECT_EQ(Verb({"delete", "same"}).err, "plotsmith: " + sentence);
  EXPECT_EQ(RunCommand({"definition", book_, "same"}).err, "plotsmith: " + sentence);
}

TEST_F(ChartVerbsTest, BucketTablesWithTheSameNameAreToldApartById) {
  PlainBook book = PlainSales();
  PlainSheet targets = book.Sheet("Targets");
  targets.name = "Targets2";
  book.sheets.push_back(targets);
  book.names.emplace_back("VEX_SB2", "Targets2!$A$1:$B$5");
  const S path = Write(book);
  for (const S id : {"VEX_SB1", "VEX_SB2"}) {
    const CommandResult result =
        RunCommand({"new", path, "--table", "Data1", "--type", "strategic bucket", "--title", "A",
                    "--categories", "Product", "--bucket-table", id, "-o", out_});
    EXPECT_EQ(result.err, "");
    EXPECT_NE(StoredDefinition(out_, "VEX_Chart1").find("strategic-bucket-table-id=\"" + id + "\""), S::npos)
        << id;
  }
}

TEST_F(ChartVerbsTest, MessagesOfTheBuildAreReported) {
  PlainBook book;
  book.sheets.push_back(SalesSheet());
  for (int i = 0; i < 300; ++i) book.sheets[0].rows.push_back({S("East"), "P" + std::to_string(i), 1.0, 1.0});
  book_ = Write(book);
  const S said = "This chart type is limited to 254 series.\nSome data will be dropped from chart 'Chart1'.";
  const std::vector<S> arguments = {"new", "--table", "Data1", "--type", "column", "--series", "Product"};
  const CommandResult result = Verb(arguments);
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(result.err, "Brindle Plotsmith: " + said + "\n");
  EXPECT_NE(Charts(out_).find("  ok\n"), S::npos);
  const CommandResult printed = Verb(Joined(arguments, {"--print-script"}));
  EXPECT_EQ(printed.code, 1);
  EXPECT_TRUE(printed.out.ends_with(
      "press cmdFinish\nexpect message \"This chart type is limited to 254 series.\\nSome "
      "data will be dropped from chart 'Chart1'.\"\npage none\n"))
      << printed.out;
  EXPECT_EQ(Wizard(book_, printed.out).code, 0) << "a script that expects it succeeds";
}

TEST_F(ChartVerbsTest, ARunThatEndsBeforeItsPagesFails) {
  PlainBook book;
  book.sheets.push_back({"Sheet1"});
  book_ = Write(book);
  const CommandResult result = Verb({"new", "--table", "Data1", "--type", "bar"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err,
            "Brindle Plotsmith: This workbook contains no tables. You must create one in order to run the "
            "Plotsmith.\nplotsmith: nothing was done, and nothing is saved.\n");
}

}  // namespace
}  // namespace plotsmith::cli

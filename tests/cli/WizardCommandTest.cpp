#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <nlohmann/json.hpp>
#include <regex>
#include <vector>

#include "tests/support/HostTest.h"
#include "tests/support/RunCommand.h"
#include "xlsx/package/Package.h"

namespace plotsmith::cli {
namespace {

using test::CommandResult;
using test::RunCommand;
using test::SalesBook;
using S = std::string;

/// Sales by region and product, and a table of regions that can serve as buckets. It has never seen a chart.
test::PlainBook PlainSales() {
  test::PlainBook book;
  book.sheets.push_back(test::SalesSheet());
  test::PlainSheet targets{"Targets"};
  targets.rows = {{S("Targets")}, {}, {S("Region"), S("Amount")}, {S("East"), 100.0}, {S("West"), 50.0}};
  book.sheets.push_back(targets);
  book.names = {{"VEX_SB1", "Targets!$A$1:$B$5"}};
  return book;
}

class WizardCommandTest : public ::testing::Test {
 protected:
  S Write(const test::PlainBook& book, const S& name = "book.xlsx") {
    book.Write(folder_ / name);
    return folder_ / name;
  }
  static S Bytes(const S& path) {
    std::ifstream file(path, std::ios::binary);
    return S((std::istreambuf_iterator<char>(file)), {});
  }
  CommandResult Wizard(const S& book, const S& script, std::vector<S> more = {}) {
    more.insert(more.begin(), {"wizard", book, "--script", "-"});
    return RunCommand(more, script);
  }
  static S Charts(const S& book) { return RunCommand({"charts", book}).out; }
  static S Definition(const S& book, const S& chart) { return RunCommand({"definition", book, chart}).out; }

  test::TempFolder folder_;
};

TEST_F(WizardCommandTest, ARunThatBuildsAChartIsSaved) {
  const S book = Write(PlainSales());
  const CommandResult result = Wizard(book, R"(
# the first chart of a workbook
page frmPSSelectTable
select grdTables Data1
choose optType(1)
press cmdNext
page frmPSLayoutABC
type txtTitle "Sales by region"
choose optSeries(1)
choose cboSeries Product
press cmdFinish
page none
)");
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.out + result.err, "");
  EXPECT_EQ(
      Charts(book),
      "VEX_Chart1  \"Sales by region\"\n  column chart on sheet Data1, from table Data1 on sheet Data1\n  "
      "ok\n");
  EXPECT_EQ(RunCommand({"cells", book, "VEX_ChartData!A1:D3"}).out,
            "VEX_Chart1\t\tWidget\tGadget\nVEX_Chart1\tEast\t11\t7\nVEX_Chart1\tWest\t5\t\n");
}

TEST_F(WizardCommandTest, ARunThatDeletesAChartIsSaved) {
  const S book = Write(SalesBook({{"VEX_Chart1"}, {"VEX_Chart2"}}));
  const CommandResult result = Wizard(book, R"(
select grdCharts "Name of VEX_Chart1"
answer ok
press cmdDelete
expect question "Are you sure you want to delete this chart?\n\nClick 'OK' to delete or 'Cancel' to abort."
page frmPSSelectAction
expect grdCharts.Rows 2
)");
  EXPECT_EQ(result.code, 0) << result.err;
  EXPECT_EQ(Charts(book).find("VEX_Chart1"), S::npos);
  EXPECT_NE(Charts(book).find("VEX_Chart2"), S::npos);
}

TEST_F(WizardCommandTest, NothingElseIsSaved) {
  struct Case {
    const char* name;
    S script;
    int code;
    S err;
  };
  const Case cases[] = {
      {"nothing", "", 0, ""},
      {"a cancellation", "select grdCharts #1\npress cmdCopy\ntype txtTitle x\npress cmdCancel\npage none", 0,
       ""},
      {"a deletion taken back", "select grdCharts #1\nanswer cancel\npress cmdDelete\npress cmdCancel", 0,
       ""},
      {"a script that ends before the pages", "press cmdNew\nselect grdTables #1\nchoose optType(3)", 0, ""},
      {"a sheet to look at", "select grdCharts #1\npress cmdGoToTable\nclose", 0, ""},
      {"a line that can't be done", "\nselect grdCharts Sales", 2,
       "plotsmith: -:2: grdCharts has no row 'Sales'; it has 'Name of VEX_Chart1'.\n"},
      {"a build, and then such a line",
       "select grdCharts #1\npress cmdModify\npress cmdFinish\npage frmPSLayoutABC", 2,
       "plotsmith: -:4: the run is over, and no page is open.\n"},
      {"a message that no line expects",
       "press cmdNew\npress cmdNext\nselect grdTables #1\npage frmPSSelectTable", 2,
       "plotsmith: -:4: there was a message that no line expects: 'Please select the table on which the "
       "chart is "
       "based'.\n"},
      {"a question without an answer", "select grdCharts #1\npress cmdDelete", 2,
       "plotsmith: -:2: the question 'Are you sure you want to delete this chart?\\n\\nClick 'OK' to delete "
       "or "
       "'Cancel' to abort.' has no answer; a line 'answer ok' or 'answer cancel' gives it in advance.\n"},
  };
  const S book = Write(SalesBook({{"VEX_Chart1"}}));
  const S before = Bytes(book), out = folder_ / "out.xlsx";
  for (const Case& item : cases) {
    for (const std::vector<S>& more : {std::vector<S>{}, {"-o", out}, {"--host-version", "11"}}) {
      const CommandResult result = Wizard(book, item.script, more);
      EXPECT_EQ(result.code, item.code) << item.name;
      EXPECT_EQ(result.err, item.err) << item.name;
      EXPECT_EQ(Bytes(book), before) << item.name;
      EXPECT_FALSE(std::filesystem::exists(out)) << item.name;
    }
  }
}

TEST_F(WizardCommandTest, WhatTheWizardSaysIsExpectedByTheScript) {
  const S empty = [&] {
    test::PlainBook book;
    book.sheets.push_back({"Sheet1"});
    return Write(book, "empty.xlsx");
  }();
  const S none = "This workbook contains no tables. You must create one in order to run the Plotsmith.";
  EXPECT_EQ(Wizard(empty, "expect message \"" + none + "\"\npage none").code, 0);
  EXPECT_EQ(Wizard(empty, "page none").err,
            "plotsmith: -:1: there was a message that no line expects: '" + none + "'.\n");
  EXPECT_EQ(Wizard(empty, "").code, 2);
}

TEST_F(WizardCommandTest, PagesDoNotNestWithoutEnd) {
  const S book = Write(PlainSales());
  const S start = "select grdTables Data1\nchoose optType(1)\n";
  const auto forthAndBack = [](int times) {
    S lines;
    for (int i = 0; i < times; ++i) lines += "press cmdNext\npress cmdBack\n";
    return lines;
  };
  EXPECT_EQ(Wizard(book, start + forthAndBack(200) + "page frmPSSelectTable").err, "");
  EXPECT_EQ(Wizard(book, start + forthAndBack(249) + "press cmdNext\npress cmdBack\n" +
                             "expect message \"PSController.PSJumpToStep\\nOut of stack space\"\npage none")
                .err,
            "");
}

TEST_F(WizardCommandTest, PagesAreShown) {
  const S book = Write(PlainSales());
  const CommandResult shown =
      Wizard(book, "select grdTables Data1\nshow\nchoose optType(3)\npress cmdNext", {"--show"});
  EXPECT_TRUE(
      shown.out.starts_with("frmPSSelectTable  Brindle Plotsmith - Source Table and Chart Type\n"
                            "fraTableList  Tables in this Workbook\n"
                            "  grdTables   (focus)\n"
                            "    >Data1\n"
                            "     Targets\n"
                            "fraChartType  Chart Type\n"
                            "  optType(0)  ( ) Bar\n"))
      << shown.out;
  EXPECT_NE(shown.out.find("\nfrmPSLayoutPie  Brindle Plotsmith - Chart Layout\n"), S::npos)
      << "the last page";
  const auto json = nlohmann::json::parse(Wizard(book, "show", {"--json"}).out);
  EXPECT_EQ(json["name"], "frmPSSelectTable");
  EXPECT_EQ(json["controls"][1]["rows"], nlohmann::json::parse(R"([["Data1"], ["Targets"]])"));
  EXPECT_EQ(Wizard(book, "close", {"--show"}).out, "") << "no page is open at the end";
}

TEST_F(WizardCommandTest, FilesAndLocksAreSeenTo) {
  const S book = Write(SalesBook({{"VEX_Chart1"}}));
  const S script = folder_ / "script.txt";
  std::ofstream(script) << "select grdCharts #1\r\npress cmdModify\r\npress cmdBak\r\n";
  CommandResult result = RunCommand({"wizard", book, "--script", script});
  EXPECT_EQ(result.code, 2);
  EXPECT_TRUE(
      result.err.starts_with("plotsmith: " + script + ":3: frmPSLayoutABC has no control 'cmdBak'; it has "))
      << result.err;
  result = RunCommand({"wizard", book, "--show"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err, "plotsmith: --show requires --script (try plotsmith --help)\n");
  for (const S& path : {folder_ / "none.txt", folder_.Path().string()}) {
    result = RunCommand({"wizard", book, "--script", path});
    EXPECT_EQ(result.code, 3);
    EXPECT_EQ(result.err, "plotsmith: can't read \"" + path + "\".\n");
  }
  std::ofstream(folder_ / "~$book.xlsx") << "";
  EXPECT_EQ(Wizard(book, "").code, 3);
  EXPECT_EQ(Wizard(book, "", {"--force"}).code, 0);
  EXPECT_EQ(Wizard(book, "", {"-o", folder_ / "out.xlsx"}).code, 0);
}

struct NewChart {
  S type;
  std::vector<S> options;  ///< of the layout
  S block;                 ///< its rows on the data sheet
  S definition;            ///< what the pages write into it
};

const NewChart kNewCharts[] = {
    {"area",
     {"--series-columns", "cost", "Amount"},
     "\t\tAmount\tCost\n\tEast\t18\t13\n\tWest\t5\t4\n",
     R"(<categories headings-in="rows"><column name="Region"/></categories>
<series headings-in="columns"><column name="Amount"/><column name="Cost"/></series><dynamic-attributes/>
<axes><axis type="label" label="Region" sticky="no"/><axis type="value" label="" sticky="yes"/></axes>
<data-labels/>)"},
    {"bar",
     {"--category-columns", "Amount", "Cost", "--x-axis", "Sum"},
     "\t\tValue\n\tAmount\t23\n\tCost\t17\n",
     R"(<categories headings-in="columns"><column name="Amount"/><column name="Cost"/></categories>
<series headings-in="none"/><dynamic-attributes/>
<axes><axis type="label" label="" sticky="yes"/><axis type="value" label="Sum" sticky="yes"/></axes>
<data-labels/>)"},
    {"column",
     {"--categories", "PRODUCT", "--series", "Region", "--values", "Cost", "--set", "100%", "stacked"},
     "\t\tEast\tWest\n\tWidget\t8\t4\n\tGadget\t5\n",
     R"(<categories headings-in="rows"><column name="Product"/></categories>
<series headings-in="rows"><column name="Region"/></series><values><column name="Cost"/></values>
<dynamic-attributes><attribute setting="stacked"/><attribute setting="100%"/></dynamic-attributes>
<axes><axis type="label" label="Product" sticky="no"/><axis type="value" label="Cost" sticky="no"/></axes>
<data-labels/>)"},
    {"pie",
     {"--categories", "Product", "--labels", "percentages", "--set", "exploded", "--comment", "a b"},
     "\t\tAmount\n\tWidget\t16\n\tGadget\t7\n",
     R"(<categories headings-in="rows"><column name="Product"/></categories><series headings-in="none"/>
<values><column name="Amount"/></values>
<dynamic-attributes><attribute setting="exploded"/></dynamic-attributes>
<data-labels><data-label show="percentages"/></data-labels><comment>a b</comment>)"},
    {"bubble",
     {"--x-values", "Cost", "--series", "Product", "--sizes", "Amount", "--set", "show-zero-bubbles"},
     "\t\t[-BubbleColor-]\t[-XAxisValue-]\t[-YAxisValue-]\t[-BubbleSize-]\n\tEast\tWidget\t13\t18\t18\n"
     "\tWest\tWidget\t4\t5\t5\n",
     R"(<categories headings-in="rows"><column name="Region"/></categories>
<series headings-in="rows"><column name="Product"/></series><values><column name="Amount"/></values>
<x-values><column name="Cost"/></x-values><bubble-sizes><column name="Amount"/></bubble-sizes>
<static-attributes><attribute setting="show-zero-bubbles"/></static-attributes><dynamic-attributes/>
<axes><axis type="label" label="Cost" sticky="no"/><axis type="value" label="Amount" sticky="no"/></axes>
<data-labels><data-label show="values"/></data-labels>)"},
    {"strategic bucket",
     {"--categories", "Product", "--bucket-table", "VEX_SB1", "--labels", "names", "--sort-by", "Cost",
      "--descending", "--number-format", "0.0"},
     "\t\t[-BlockColor-]\t[-BlockSort-]\tEAST\tWEST\n\t[-StrategicBuckets-]\t\t\t100.0\t50.0\n"
     "\tWidget\t[none]\t12.0\t11.0\t5.0\n\tGadget\t[none]\t5.0\t7.0\n",
     R"(<categories headings-in="rows"><column name="Product"/></categories><series headings-in="none"/>
<values><column name="Amount"/></values><sort-order sort="descending"><column name="Cost"/></sort-order>
<dynamic-attributes/>
<axes><axis type="label" label="Region" sticky="no"/><axis type="value" label="Amount" sticky="no"/></axes>
<data-labels manual-labels="yes"><data-label show="values"/></data-labels>)"},
};

class NewChartTest : public WizardCommandTest {
 protected:
  /// The arguments of `new` that make the chart.
  static std::vector<S> Arguments(const S& book, const NewChart& chart) {
    std::vector<S> arguments = {"new",    book,       "--table", "Data1",
                                "--type", chart.type, "--title", "A " + chart.type};
    arguments.insert(arguments.end(), chart.options.begin(), chart.options.end());
    return arguments;
  }
  static std::vector<S> With(std::vector<S> arguments, const std::vector<S>& more) {
    arguments.insert(arguments.end(), more.begin(), more.end());
    return arguments;
  }
  /// The rows of the one chart on the data sheet, without its id.
  static S Block(const S& book) {
    const S cells = RunCommand({"cells", book, "VEX_ChartData!A1:F9"}).out;
    const S rows = std::regex_replace(cells, std::regex("VEX_Chart1"), "");
    return std::regex_replace(std::regex_replace(rows, std::regex("\t+\n"), "\n"), std::regex("\n+$"), "\n");
  }
  /// The definition without what was read from the chart, and without what a refresh copies from the table.
  static S Written(const S& book) {
    const std::regex copied(
        " (table-top-row|table-left-column|table-height|header-row-count|data-start-row|worksheet-column-"
        "number|"
        "bucket-[a-z]+-column-position)=\"[0-9]+\"");
    const S text = std::regex_replace(Definition(book, "VEX_Chart1"), copied, "");
    return std::regex_replace(text, std::regex("<auto-persistence>.*</auto-persistence>"), "");
  }
  /// The part of the one chart, without its legend.
  static S ChartPart(const S& book) {
    const S part = xlsx::Package::Open(book).Read("/xl/charts/chart1.xml");
    return std::regex_replace(part, std::regex("<c:legend>.*</c:legend>"), "");
  }
};

TEST_F(NewChartTest, ChartsOfAllTypesAreMadeOnAPlainWorkbook) {
  const S book = Write(PlainSales()), out = folder_ / "out.xlsx";
  for (const NewChart& chart : kNewCharts) {
    const CommandResult result = RunCommand(With(Arguments(book, chart), {"-o", out}));
    EXPECT_EQ(result.code, 0) << chart.type;
    EXPECT_EQ(result.out + result.err, "") << chart.type;
    EXPECT_EQ(Charts(out), "VEX_Chart1  \"A " + chart.type + "\"\n  " + chart.type +
                               " chart on sheet Data1, from table Data1 on sheet Data1\n  ok\n");
    EXPECT_EQ(Block(out), chart.block) << chart.type;
    const S definition = Written(out);
    EXPECT_EQ(definition.substr(definition.find("><") + 1),
              std::regex_replace(chart.definition, std::regex("\n"), "") + "</chart>\n")
        << chart.type;
  }
}

TEST_F(NewChartTest, ARefreshFindsNothingToDoAfterIt) {
  const S book = Write(PlainSales()), out = folder_ / "out.xlsx", refreshed = folder_ / "refreshed.xlsx";
  for (const NewChart& chart : kNewCharts) {
    ASSERT_EQ(RunCommand(With(Arguments(book, chart), {"-o", out})).code, 0) << chart.type;
    ASSERT_EQ(RunCommand({"refresh", out, "-o", refreshed}).code, 0) << chart.type;
    EXPECT_EQ(Written(out), Written(refreshed)) << chart.type;
    EXPECT_EQ(Block(out), Block(refreshed)) << chart.type;
    // a legend gets the font that was read back from it
    EXPECT_EQ(ChartPart(out), ChartPart(refreshed)) << chart.type;
  }
}

TEST_F(NewChartTest, TheScriptThatIsPrintedDoesTheSame) {
  const S book = Write(PlainSales()), out = folder_ / "out.xlsx", played = folder_ / "played.xlsx";
  const S before = Bytes(book);
  for (const NewChart& chart : kNewCharts) {
    ASSERT_EQ(RunCommand(With(Arguments(book, chart), {"-o", out})).code, 0) << chart.type;
    const CommandResult printed = RunCommand(With(Arguments(book, chart), {"--print-script"}));
    EXPECT_EQ(printed.code, 0) << chart.type;
    EXPECT_EQ(Bytes(book), before);
    EXPECT_EQ(Wizard(book, printed.out, {"-o", played}).code, 0) << printed.out;
    EXPECT_EQ(Bytes(played), Bytes(out)) << chart.type;
  }
  EXPECT_EQ(RunCommand(With(Arguments(book, kNewCharts[2]), {"--new-sheet", "Mine", "--print-script"})).out,
            R"(page frmPSSelectTable
select grdTables Data1
choose optType(1)
press cmdNext
page frmPSLayoutABC
type txtTitle "A column"
choose cboCategories Product
choose optSeries(1)
choose cboSeries Region
choose cboValues Cost
check chkStacked
check chk100Pct
press cmdNext
page frmPSChartLocation
choose optTargetSheet(0)
type txtSheet Mine
press cmdFinish
page none
)");
}

/// Verbs on a workbook with two charts, one of which has a table without a label column.
class VerbTest : public WizardCommandTest {
 protected:
  VerbTest() {
    test::Definition first{"VEX_Chart1"}, second{"VEX_Chart2", "pie", "table-id=\"Data2\" title=\"\""};
    second.series = "<series headings-in=\"none\"/>";
    test::PlainBook book = SalesBook({first, second});
    test::PlainSheet numbers{"Data2"};
    numbers.rows = {{S("Amount"), S("Cost")}, {1.0, 2.0}};
    book.sheets.push_back(numbers);
    book.sheets.push_back(test::SalesSheet("Data3"));
    book_ = Write(book);
    // draws the first chart; the second one has something to say
    EXPECT_EQ(RunCommand({"refresh", book_}).code, 1);
  }
  /// Runs a verb on the workbook with the output elsewhere.
  CommandResult Verb(std::vector<S> arguments) {
    arguments.insert(arguments.begin() + 1, book_);
    arguments.insert(arguments.end(), {"-o", out_});
    std::filesystem::remove(out_);
    return RunCommand(arguments);
  }

  S book_;
  S out_ = folder_ / "out.xlsx";
};

TEST_F(VerbTest, WhatIsNotThereIsOneSentenceAndNothingIsSaved) {
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
       "no column 'Region' for --values; there are Amount and Cost; 'Region' is a label column."},
      {{"modify", "VEX_Chart1", "--category-columns", "Amount", "Gain", "--no-series"},
       "no column 'Gain' for --category-columns; there are Amount and Cost."},
      {{"new", "--table", "Data1", "--type", "bar", "--sheet", "Sheet1"},
       "no sheet 'Sheet1' for --sheet; there are Data1, Charts, Data2 and Data3."},
      // what a type or a layout doesn't have
      {{"modify", "VEX_Chart1", "--sizes", "Cost"},
       "a column chart has no --sizes; it has --title, --categories, --category-columns, --series, "
       "--series-columns, --no-series, --values, --x-axis, --y-axis, --number-format, --labels, --set, "
       "--unset and "
       "--comment."},
      {{"modify", "VEX_Chart1", "--type", "pie", "--x-axis", "a"},
       "a pie chart has no --x-axis; it has --title, --categories, --values, --number-format, --labels, "
       "--set, "
       "--unset and --comment."},
      {{"modify", "VEX_Chart1", "--set", "exploded"},
       "a column chart has no setting 'exploded'; it has 3D, stacked and 100%."},
      {{"modify", "VEX_Chart1", "--type", "area", "--labels", "names"},
       "an area chart has no labels 'names'; it has values and none."},
      {{"modify", "VEX_Chart1", "--set", "100%"}, "--set 100% needs --set stacked."},
      {{"modify", "VEX_Chart1", "--series-columns", "Cost", "--values", "Cost"},
       "--values needs categories and series that are no number columns."},
      {{"modify", "VEX_Chart1", "--set", "3D", "--unset", "3D"}, "3D can't be both set and unset."},
      {{"modify", "VEX_Chart1", "--title", S(256, 'x')}, "--title takes 255 characters."},
      {{"modify", "VEX_Chart1", "--name", "a\x02"}, "--name takes no control characters."},
      {{"modify", "VEX_Chart1", "--number-format", "\x01"}, "--number-format takes no control characters."},
      {{"new", "--table", "Data1", "--type", "bar", "--new-sheet", "vex_chartdata"},
       "--new-sheet can't be 'VEX_ChartData', which is a sheet of Plotsmith's own."},
      // what the pages say
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
  const S before = Bytes(book_);
  for (const auto& [arguments, sentence] : cases) {
    const CommandResult result = Verb(arguments);
    EXPECT_EQ(result.code, 2) << sentence;
    EXPECT_EQ(result.err, "plotsmith: " + sentence + "\n");
    EXPECT_EQ(result.out, "");
    EXPECT_FALSE(std::filesystem::exists(out_)) << sentence;
    EXPECT_EQ(Bytes(book_), before) << sentence;
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

TEST_F(VerbTest, ModifyTouchesOnlyWhatIsNamed) {
  const auto definition = [&](const std::vector<S>& options) {
    std::vector<S> arguments = {"modify", "NAME of vex_chart1"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const CommandResult result = Verb(arguments);
    EXPECT_EQ(result.code, 0) << result.err;
    const S text = std::regex_replace(Definition(out_, "VEX_Chart1"),
                                      std::regex(" worksheet-column-number=\"[0-9]\""), "");
    return std::regex_replace(text, std::regex("<auto-persistence>.*</auto-persistence>"), "");
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

TEST_F(VerbTest, AChartWhoseTableFitsNoLongerGetsAnotherOne) {
  const CommandResult result = Verb({"modify", "VEX_Chart2", "--table", "Data1", "--values", "Cost"});
  EXPECT_EQ(result.code, 0) << result.err;
  const S definition = Definition(out_, "VEX_Chart2");
  EXPECT_NE(definition.find("table-id=\"Data1\""), S::npos) << definition;
  EXPECT_NE(definition.find("<values><column name=\"Cost\"/></values>"), S::npos) << definition;
  const S script =
      RunCommand({"modify", book_, "VEX_Chart2", "--table", "Data1", "--values", "Cost", "--print-script"})
          .out;
  EXPECT_NE(script.find("expect message \"Table 'Data2' is not currently valid"), S::npos) << script;
  EXPECT_EQ(Wizard(book_, script, {"-o", folder_ / "played.xlsx"}).code, 0);
  EXPECT_EQ(Bytes(folder_ / "played.xlsx"), Bytes(out_));
}

TEST_F(VerbTest, OptionsReachTheirControlsFromAnyLayout) {
  test::Definition columns{"VEX_Chart1"};
  columns.series = "<series headings-in=\"columns\"><column name=\"Amount\"/></series>";
  columns.values = "";
  test::PlainBook book = SalesBook({columns});
  const S twoNumbers = Write(book, "two.xlsx");
  for (test::PlainRow& row : book.Sheet("Data1").rows) row.pop_back();
  const S oneNumber = Write(book, "one.xlsx");
  const S byColumn = "<categories headings-in=\"columns\"><column name=\"Amount\"/></categories>",
          byProduct = "<series headings-in=\"rows\"><column name=\"Product\"/></series>";
  struct Case {
    S book;
    std::vector<S> options;
    S piece;
  };
  const Case cases[] = {
      // a click on the only number column takes the series away
      {oneNumber,
       {"--series", "Product", "--values", "Amount"},
       byProduct + "<values><column name=\"Amount\"/></values>"},
      // columns can't be the categories while they are the series
      {twoNumbers,
       {"--category-columns", "Amount", "--no-series"},
       byColumn + "<series headings-in=\"none\"/>"},
      {twoNumbers, {"--category-columns", "Amount", "--series", "Product"}, byColumn + byProduct},
  };
  for (const Case& item : cases) {
    book_ = item.book;
    std::vector<S> arguments = {"modify", "VEX_Chart1"};
    arguments.insert(arguments.end(), item.options.begin(), item.options.end());
    const CommandResult result = Verb(arguments);
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_NE(Definition(out_, "VEX_Chart1").find(item.piece), S::npos) << Definition(out_, "VEX_Chart1");
  }
  EXPECT_EQ(
      Verb({"modify", "VEX_Chart1", "--category-columns", "Amount"}).err,
      "plotsmith: --category-columns needs series that are no number columns, by --series or --no-series.\n");
}

TEST_F(VerbTest, AChartOfAnUnknownTypeGetsAnotherOne) {
  book_ = Write(SalesBook({{"VEX_Chart1", "unknown"}}));
  EXPECT_EQ(Verb({"modify", "VEX_Chart1", "--title", "x"}).err, "plotsmith: Please select a chart type.\n");
  EXPECT_EQ(Verb({"modify", "VEX_Chart1", "--table", "Data1"}).err,
            "plotsmith: Please select a chart type.\n");
  EXPECT_EQ(Verb({"modify", "VEX_Chart1", "--type", "pie"}).code, 0);
  EXPECT_NE(Charts(out_).find("pie chart on sheet Charts"), S::npos) << Charts(out_);
}

TEST_F(VerbTest, AChartWithoutATableCanOnlyBeDeleted) {
  test::PlainBook book = SalesBook({{"VEX_Chart1", "column", "table-id=\"Gone\""}});
  book_ = Write(book, "gone.xlsx");
  const S sentence =
      "plotsmith: the table of the chart 'VEX_Chart1' is gone, so the chart can only be deleted.\n";
  EXPECT_EQ(Verb({"modify", "VEX_Chart1", "--table", "Data1"}).err, sentence);
  EXPECT_EQ(Verb({"copy", "VEX_Chart1"}).err, sentence);
  EXPECT_EQ(Verb({"delete", "VEX_Chart1"}).code, 0);
  EXPECT_EQ(Charts(out_), "");
  book_ = out_;
  out_ = folder_ / "again.xlsx";
  EXPECT_EQ(Verb({"delete", "VEX_Chart1"}).err,
            "plotsmith: no chart 'VEX_Chart1'; the workbook has no charts.\n");
  EXPECT_EQ(Verb({"modify", "VEX_Chart1"}).err,
            "plotsmith: no chart 'VEX_Chart1'; the workbook has no charts.\n");
}

TEST_F(VerbTest, CopiesStandWhereTheyAreTold) {
  const std::pair<std::vector<S>, S> cases[] = {
      {{}, "VEX_Chart3  \"Copy of Name of VEX_Chart1\"\n  column chart on sheet Charts,"},
      {{"--name", "Twin", "--sheet", "data2"}, "VEX_Chart3  \"Twin\"\n  column chart on sheet Data2,"},
      {{"--new-sheet", "Mine", "--type", "area"},
       "VEX_Chart3  \"Copy of Name of VEX_Chart1\"\n  area chart on sheet Mine,"},
  };
  for (const auto& [options, line] : cases) {
    std::vector<S> arguments = {"copy", "VEX_Chart1"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    const CommandResult result = Verb(arguments);
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_NE(Charts(out_).find(line), S::npos) << Charts(out_);
    EXPECT_NE(Charts(out_).find("VEX_Chart1  \"Name of VEX_Chart1\"\n  column chart on sheet Charts,"),
              S::npos);
  }
}

TEST_F(VerbTest, DeletesSeveralCharts) {
  EXPECT_EQ(Verb({"delete", "VEX_Chart2", "name of VEX_Chart1", "VEX_Chart2"}).code, 0);
  EXPECT_EQ(Charts(out_), "");
  EXPECT_EQ(Verb({"delete", "VEX_Chart2"}).code, 0);
  EXPECT_TRUE(Charts(out_).starts_with("VEX_Chart1"));
  EXPECT_EQ(RunCommand({"delete", book_, "VEX_Chart2", "--print-script"}).out,
            "page frmPSSelectAction\nselect grdCharts \"Name of VEX_Chart2\"\nanswer ok\npress cmdDelete\n"
            "page frmPSSelectAction\n");
}

TEST_F(VerbTest, RowsAreNamedByNumberWhereTheirTextIsNotEnough) {
  test::PlainBook book = SalesBook({{"VEX_Chart1"}, {"VEX_Chart2"}, {"VEX_Chart3"}});
  book_ = Write(book);
  for (const auto& [chart, name] :
       std::vector<std::pair<S, S>>{{"VEX_Chart1", "Same"}, {"VEX_Chart2", "#2"}, {"VEX_Chart3", "Same"}})
    EXPECT_EQ(RunCommand({"modify", book_, chart, "--name", name}).code, 0) << name;
  const auto selected = [&](const S& chart) {
    const S script = RunCommand({"delete", book_, chart, "--print-script"}).out;
    return std::regex_replace(script, std::regex("(.|\n)*(select .*)\nanswer(.|\n)*"), "$2");
  };
  EXPECT_EQ(selected("VEX_Chart2"), "select grdCharts #1");
  EXPECT_EQ(selected("VEX_Chart1"), "select grdCharts #2");
  EXPECT_EQ(selected("VEX_Chart3"), "select grdCharts #3");
  const S sentence =
      "several charts have the name 'same': VEX_Chart1 and VEX_Chart3; an id names one of them.\n";
  EXPECT_EQ(Verb({"delete", "same"}).err, "plotsmith: " + sentence);
  EXPECT_EQ(RunCommand({"definition", book_, "same"}).err, "plotsmith: " + sentence);
}

TEST_F(VerbTest, WhatTheBuildHasToSayIsSavedAndSaid) {
  test::PlainBook book;
  book.sheets.push_back(test::SalesSheet());
  for (int i = 0; i < 300; ++i) book.sheets[0].rows.push_back({S("East"), "P" + std::to_string(i), 1.0, 1.0});
  book_ = Write(book);
  const S said = "This chart type is limited to 254 series.\nSome data will be dropped from chart 'Chart1'.";
  const std::vector<S> arguments = {"new", "--table", "Data1", "--type", "column", "--series", "Product"};
  const CommandResult result = Verb(arguments);
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(result.err, "Brindle Plotsmith: " + said + "\n");
  EXPECT_NE(Charts(out_).find("  ok\n"), S::npos);
  const CommandResult printed = RunCommand(
      {"new", book_, "--table", "Data1", "--type", "column", "--series", "Product", "--print-script"});
  EXPECT_EQ(printed.code, 1);
  EXPECT_TRUE(printed.out.ends_with(
      "press cmdFinish\nexpect message \"This chart type is limited to 254 series.\\nSome "
      "data will be dropped from chart 'Chart1'.\"\npage none\n"))
      << printed.out;
  EXPECT_EQ(Wizard(book_, printed.out).code, 0) << "a script that expects it is content";
}

TEST_F(VerbTest, ARunThatEndsBeforeItsPagesIsNoSuccess) {
  test::PlainBook book;
  book.sheets.push_back({"Sheet1"});
  book_ = Write(book);
  const CommandResult result = Verb({"new", "--table", "Data1", "--type", "bar"});
  EXPECT_EQ(result.code, 2);
  EXPECT_EQ(result.err,
            "Brindle Plotsmith: This workbook contains no tables. You must create one in order to run the "
            "Plotsmith.\n"
            "plotsmith: nothing was done, and nothing is saved.\n");
}

}  // namespace
}  // namespace plotsmith::cli

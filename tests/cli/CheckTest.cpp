#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <sstream>
#include <vector>

#include "cli/check/Words.h"
#include "runtime/Strings.h"
#include "tests/support/FamilyBooks.h"
#include "tests/support/Files.h"
#include "tests/support/VerbsTest.h"

namespace plotsmith::cli {
namespace {

using namespace test;
using S = std::string;
using List = std::vector<S>;

const S kFormula = "><f>1+1</f><v></v></c>";

const S kRefused = "; until this is corrected, the workbook is only written with --drop-broken.";

const S kStray =
    "A chart here has the alternative text 'VEX_Chart1', but no definition has this id; a new chart could "
    "get the same id. Delete the chart, or clear its alternative text";

/// Tests the findings of `check`: the indented lines, without the place of the first definition.
class CheckTest : public VerbsTest {
 protected:
  CommandResult Check(const PlainBook& book, const List& options = {}) {
    const S path = Write(book), before = BytesOf(path);
    auto result = RunCommand(Joined({"check", path}, options));
    EXPECT_EQ(BytesOf(path), before);
    EXPECT_EQ(result.err, "");
    return result;
  }
  List Found(const PlainBook& book) {
    const auto result = Check(book);
    List lines;
    std::istringstream out(result.out);
    for (S line; std::getline(out, line);) {
      if (!line.starts_with("  ")) continue;
      const S own = "  VEX_ChartDefinitions!A2: ";
      lines.push_back(line.substr(line.starts_with(own) ? own.size() : 2));
    }
    EXPECT_EQ(result.code, lines.empty() ? 0 : 1) << result.out;
    return lines;
  }
  /// Returns the findings about one definition for the sales table.
  List Found(const Definition& definition) { return Found(SalesBook({definition})); }
};

TEST(CheckWordsTest, ListsAndQuotations) {
  EXPECT_EQ(ThereAre({}), "there are none");
  EXPECT_EQ(ThereAre({"a"}), "there is a");
  EXPECT_EQ(ThereAre({"a", "b", "c"}), "there are a, b and c");
  EXPECT_EQ(Listed({"a", "b"}, "or"), "a or b");
  EXPECT_TRUE(Listed(List(43, "x")).ends_with("x, x and 3 more")) << Listed(List(43, "x"));
  EXPECT_EQ(Quoted("a\nb"), "'a b'");
  EXPECT_EQ(Quoted(S(61, 'x')), "'" + S(60, 'x') + "...'");
  EXPECT_EQ(Quoted(S(59, 'x') + "\U0001F600"), "'" + S(59, 'x') + "...'") << "not half of a character";
  EXPECT_EQ(Quoted(S(58, 'x') + "\U0001F600y"), "'" + S(58, 'x') + "\U0001F600...'");
  EXPECT_EQ(CellText("My sheet", 5, 28), "'My sheet'!AB5");
  EXPECT_EQ(ShellWord("VEX_SB1"), "VEX_SB1");
  EXPECT_EQ(ShellWord("Region=Gebiet O'Neil"), "'Region=Gebiet O'\\''Neil'");
}

TEST_F(CheckTest, AWorkbookWithoutProblemsIsListed) {
  const auto result = Check(SalesBook({{"VEX_Chart1"}, {"VEX_Chart2", "pie"}}));
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.out,
            "VEX_ChartDefinitions!A2  VEX_Chart1  \"Name of VEX_Chart1\"  column chart on sheet Charts, from "
            "table Data1: ok\nVEX_ChartDefinitions!A3  VEX_Chart2  \"Name of VEX_Chart2\"  pie chart on "
            "sheet Charts, from table Data1: ok\nData1  \"Data1\"  sheet Data1, rows 1 to 5 (4 of data), "
            "from column 1; label Region, label Product, number Amount, number Cost: ok\n");
  EXPECT_EQ(Found(BubbleBook({{"a", "b", 1, 2, 3}}, BubbleDefinition())), List{});
  EXPECT_EQ(Found(BucketBook(BucketDefinition())), List{});
}

TEST_F(CheckTest, TheSystemsOwnDefinitionsHaveNoProblems) {
  const PlainBook books[] = {SalesBook({{"VEX_Chart1"}, {"VEX_Chart2", "pie"}, {"VEX_Chart3", "bar"}}),
                             BubbleBook({{"a", "b", 1, 2, 3}}, BubbleDefinition()),
                             BucketBook(BucketDefinition())};
  for (const PlainBook& book : books) {
    const S path = Write(book);
    ASSERT_EQ(RunCommand({"refresh", path}).code, 0);
    EXPECT_EQ(RunCommand({"check", path}).code, 0) << RunCommand({"check", path}).out;
    EditPart(path, "/xl/drawings/drawing2.xml",
             [](S& drawing) { drawing = runtime::Replace(drawing, "descr=", "title="); });
    EXPECT_EQ(RunCommand({"check", path}).code, 1) << "a person has detached the charts";
    // LibreOffice drops the alternative text. A drawn chart is then identified by its data.
    auto package = xlsx::Package::Open(path);
    SetSavingProgram(package, "LibreOffice/7.4.7.2$Linux_X86_64 LibreOffice_project/40$Build-2");
    package.Save(path);
    EXPECT_EQ(RunCommand({"check", path}).code, 0) << RunCommand({"check", path}).out;
  }
}

TEST_F(CheckTest, AWorkbookWithoutDefinitionsOrTablesIsFine) {
  PlainBook book;
  book.sheets.push_back(SalesSheet("Sheet1"));
  const auto result = Check(book);
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.out,
            "There are no definitions of charts.\nThere are no tables. To make one, name a sheet Data1, with "
            "headings in row 1 and data below them; or give the data a name that begins with VEX_TableRange, "
            "with a title in its first cell and headings in its third row.\n");
  EXPECT_EQ(RunCommand({"check", folder_ / "none.xlsx"}).code, 3);
  book.sheets.push_back({"VEX_ChartDefinitions", {{RawCell{" t='x><v>1</v></c>"}}}});
  const auto damaged = RunCommand({"check", Write(book, "damaged.xlsx")});
  EXPECT_EQ(damaged.code, 3);
  EXPECT_EQ(damaged.out, "");
  EXPECT_TRUE(damaged.err.ends_with("sheet2.xml can't be read: its XML is damaged.\n")) << damaged.err;
}

TEST_F(CheckTest, RowsThatAreRemovedOrNotRead) {
  const S good = Definition{"VEX_Chart1"}.Xml();
  const S confused =
      "; until this is corrected, charts are only made, changed or deleted with --drop-broken.";
  const std::pair<List, List> cases[] = {
      {{"<chart id='VEX_Chart1'>\n<a></chart>"},
       {"The text is not well-formed XML (mismatched tag in line 2, character 6)" + kRefused}},
      {{"Sales"}, {"The text is not well-formed XML (syntax error in line 1, character 1)" + kRefused}},
      {{"<charts/>"}, {"The root element is 'charts' and not 'chart'" + kRefused}},
      {{runtime::Replace(good, "id=\"VEX_Chart1\"", "")}, {"The definition has no 'id'" + kRefused}},
      {{runtime::Replace(good, "id=\"VEX_Chart1\"", "id=\"VEX_Chart7\"")},
       {"No chart has the alternative text 'VEX_Chart7'; there is a chart with 'VEX_Chart1'" + kRefused}},
      {{good, good},
       {"VEX_ChartDefinitions!A3: The id 'VEX_Chart1' is already used by VEX_ChartDefinitions!A2" +
        kRefused}},
      {{"", good},
       {"VEX_ChartDefinitions!A3: This definition is never read, because VEX_ChartDefinitions!A2 is blank "
        "and ends the list" +
        confused}}};
  for (const auto& [texts, findings] : cases) {
    PlainBook book = SalesBook({{"VEX_Chart1"}});
    book.sheets.pop_back();
    book.AddDefinitions(texts);
    EXPECT_EQ(Found(book), findings) << texts.front();
    const auto listed = RunCommand({"charts", folder_ / "book.xlsx"});
    const S place = findings[0].starts_with("VEX") ? "" : "VEX_ChartDefinitions!A2: ";
    EXPECT_EQ(listed.err, "plotsmith: " + place + findings[0] + "\n");
    EXPECT_EQ(listed.code, 1);
  }
  PlainBook book = SalesBook({{"VEX_Chart1"}});
  book.Sheet("VEX_ChartDefinitions").rows.erase(book.Sheet("VEX_ChartDefinitions").rows.begin());
  EXPECT_EQ(Found(book),
            (List{"VEX_ChartDefinitions!A1: This definition is never read, because the list begins in "
                  "VEX_ChartDefinitions!A2" +
                      confused,
                  "Charts: " + kStray + confused}));
}

TEST_F(CheckTest, InvisibleCharts) {
  PlainBook book = SalesBook({{"VEX_Chart1"}});
  book.Sheet("Charts").frames[0].alternativeText = "";
  EXPECT_EQ(Found(book),
            List{"No chart has the alternative text 'VEX_Chart1'; there is 1 chart without any" + kRefused});
  book.Sheet("Charts").frames.push_back({"Other"});
  book.Sheet("Charts").frames.push_back({"Third"});
  EXPECT_EQ(
      Found(book),
      List{"No chart has the alternative text 'VEX_Chart1'; there are charts with 'Other' and 'Third' and "
           "1 chart without any" +
           kRefused});
  book.Sheet("Charts").frames.clear();
  EXPECT_EQ(Found(book),
            List{"No chart has the alternative text 'VEX_Chart1'; there are no charts" + kRefused});
  book.sheets.push_back({"VEX_ChartData", {{S("VEX_Chart1")}}, 3});
  EXPECT_EQ(
      Found(book),
      List{"No chart has the alternative text 'VEX_Chart1'; there are no charts; the chart was drawn and "
           "no longer exists, so the next refresh removes its definition."});

  // Excel's model finds charts by name, and a person can move two charts with the same name to one sheet.
  const S path = Write(SalesBook({{"VEX_Chart1"}, {"VEX_Chart2", "pie"}}));
  EditPart(path, "/xl/drawings/drawing2.xml",
           [](S& drawing) { drawing = runtime::Replace(drawing, "\"Chart 2\"", "\"CHART 1\""); });
  const S before = BytesOf(path);
  const CommandResult refreshed = RunCommand({"refresh", path});
  EXPECT_EQ(refreshed.code, 3);
  EXPECT_EQ(refreshed.err,
            "plotsmith: VEX_ChartDefinitions!A3 (chart 'Name of VEX_Chart2'): Another chart on the sheet "
            "'Charts' has the same name, "
            "'CHART 1', and would be drawn in its place; rename one of them in the selection pane.\n"
            "plotsmith: nothing was changed, because 1 definition would be lost; correct this, or use "
            "--drop-broken.\n");
  EXPECT_EQ(BytesOf(path), before);
}

TEST_F(CheckTest, InvalidNamesAndValuesInDefinitions) {
  const auto with = [](const auto& change) {
    Definition definition;
    change(definition);
    return definition;
  };
  const auto typed = [](const S& type) { return Definition{"VEX_Chart1", type}; };
  const auto attributes = [&](const S& more) {
    return with([&](Definition& d) { d.attributes += " " + more; });
  };
  const auto rest = [&](const S& more) { return with([&](Definition& d) { d.rest = more; }); };
  const S types = "area, bar, column, pie, bubble or strategic bucket.";
  const std::pair<Definition, List> cases[] = {
      {typed("line"), {"The attribute 'type' has an unknown value 'line'; it can be " + types}},
      {typed("unknown"),
       {"The type is 'unknown', because the chart was changed by hand to a type that isn't supported; it can "
        "be " +
        types}},
      {typed(""), {"The element 'chart' has no 'type'; it can be " + types}},
      {attributes("colour=\"red\" xmlns:x=\"y\" x:z=\"1\" table-height=\"5\""),
       {"The element 'chart' has an unknown attribute 'colour'; there are id, name, title, type, table-id, "
        "strategic-bucket-table-id and number-format."}},
      {rest("<valeus/>"),
       {"The element 'chart' has an unknown child 'valeus'; there are categories, series, values, x-values, "
        "bubble-sizes, sort-order, axes, data-labels, dynamic-attributes, static-attributes, comment and "
        "auto-persistence."}},
      {rest("<values><column name=\"Cost\"/></values>"),
       {"The element 'values' occurs twice, and only the first one is used."}},
      {rest("<axes><axis type=\"x\" label=\"\" sticky=\"maybe\"/></axes>"),
       {"The attribute 'type' has an unknown value 'x'; it can be label or value.",
        "The attribute 'sticky' has an unknown value 'maybe'; it can be yes or no."}},
      {rest("<data-labels><data-label show=\"names\"/></data-labels>"),
       {"The attribute 'show' has an unknown value 'names'; it can be values or percentages."}},
      {rest(Settings({"3d"})), {"A column chart has no setting '3d'; it can have 3D, stacked and 100%."}},
      {rest(Settings({"3D", "exploded"})),
       {"A column chart has no setting 'exploded'; it can have 3D, stacked and 100%."}},
      {rest("<sort-order sort=\"down\"><column name=\"Cost\"/></sort-order>"),
       {"The attribute 'sort' has an unknown value 'down'; it can be ascending or descending."}},
      {rest("<auto-persistence><persist property=\"legend\" value=\"\"/></auto-persistence>"),
       {"The attribute 'property' has an unknown value 'legend'; it can be legend-visibility, "
        "legend-position, legend-left, legend-top, label-font-background-color, legend-font-name, "
        "legend-font-size, legend-font-style, legend-font-color, legend-font-autoscale, label-font-name, "
        "label-font-size, label-font-style, label-font-color, label-font-autoscale, bucket-label-font-name, "
        "bucket-label-font-size, bucket-label-font-style, bucket-label-font-color, "
        "bucket-label-font-autoscale, LabelAxis-font-name, LabelAxis-font-size, LabelAxis-font-style, "
        "LabelAxis-font-color, LabelAxis-font-autoscale, ValueAxis-font-name, ValueAxis-font-size, "
        "ValueAxis-font-style, ValueAxis-font-color or ValueAxis-font-autoscale."}},
      {with([](Definition& d) {
         d.series = "<series headings-in=\"cells\"><column name=\"Product\"/></series>";
       }),
       {"The attribute 'headings-in' has an unknown value 'cells'; it can be rows, columns or none."}},
      {with([](Definition& d) { d.series = "<series><column name=\"Product\"/></series>"; }),
       {"The element 'series' has no 'headings-in'; it can be rows, columns or none."}},
      {with([](Definition& d) { d.values = "<values><column/></values>"; }),
       {"The element 'column' has no 'name'."}}};
  for (const auto& [definition, findings] : cases) EXPECT_EQ(Found(definition), findings) << definition.Xml();
}

TEST_F(CheckTest, RequirementsOfTypes) {
  const S rows =
      "<categories headings-in=\"rows\"><column name=\"Region\"/><column name=\"Product\"/></categories>";
  const S across =
      "<series headings-in=\"columns\"><column name=\"Amount\"/><column name=\"Cost\"/></series>";
  const auto definition = [](const S& type, const S& content) {
    return Definition{"VEX_Chart1", type, "table-id=\"Data1\"", "", "", "", content};
  };
  const S region = Definition().categories, product = Definition().series, amount = Definition().values;
  const std::pair<Definition, List> cases[] = {
      {definition("bar", region + across), {}},
      {definition("bar", region + runtime::Replace(across, "Cost", "AMOUNT")),
       {"The element 'series' names the column 'AMOUNT' twice, ignoring case."}},
      {definition("bar", product + amount), {"A bar chart needs the element 'categories'."}},
      {definition("pie", region + amount), {"A pie chart needs the element 'series'."}},
      {definition("pie", region + "<series headings-in=\"none\"/>" + amount), {}},
      {definition("bar", region + product),
       {"A bar chart needs the element 'values', unless its headings are in columns."}},
      {definition("bar", region + product + "<values/>"), {"The element 'values' names no column."}},
      {definition("bar", rows + product + amount),
       {"The element 'categories' with headings in rows needs exactly one column, but names 2."}},
      {definition("bar", runtime::Replace(rows, "rows", "columns") + across),
       {"Categories and series both have their headings in columns, but only one of them can.",
        "Data1!A2: The column 'Region' isn't a number column, which 'categories' needs, because this cell "
        "contains the text 'East', which counts as 0.",
        "Data1!B2: The column 'Product' isn't a number column, which 'categories' needs, because this cell "
        "contains the text 'Widget', which counts as 0."}},
      {definition("bubble", region + across + amount),
       {"A bubble chart can't have headings in columns; 'headings-in' must be rows, or none for series."}},
      {definition("bubble", region), {"A bubble chart needs the element 'values'."}}};
  for (const auto& [tried, findings] : cases) EXPECT_EQ(Found(tried), findings) << tried.Xml();
}

TEST_F(CheckTest, MissingTablesAndColumns) {
  const auto over = [](const S& table) { return Definition{"VEX_Chart1", "column", table}; };
  PlainBook book = SalesBook({over("table-id=\"Sales\"")});
  book.names = {{"VEX_TableRange2", "Data1!$A$1:$D$5"},
                {"VEX_TableRange3", "#REF!"},
                {"VEX_TableRange4", "Data1!$A$1:$D$2"}};
  EXPECT_EQ(Found(book), (List{"There is no table 'Sales'; there are VEX_TableRange2 and Data1; a sheet is a "
                               "table only if its name is exactly one of Data1 to Data5.",
                               "VEX_TableRange3: The name 'VEX_TableRange3' doesn't define a table, because "
                               "it refers to '=#REF!', which isn't a range of cells.",
                               "VEX_TableRange4: The name 'VEX_TableRange4' doesn't define a table, because "
                               "it refers to 2 rows, but the head of a table alone takes three."}));
  EXPECT_EQ(Found(over("")), List{"The definition has no 'table-id'; there is Data1."});
  EXPECT_EQ(Found(over("table-id=\"data1\"")), List{}) << "the case of an id doesn't matter";

  Definition mistyped;
  mistyped.values = "<values><column name=\"Amuont\"/></values>";
  EXPECT_EQ(Found(mistyped),
            List{"The table 'Data1' has no column 'Amuont' for 'values'; it has Region, Product, "
                 "Amount and Cost."});
  book = SalesBook({{"VEX_Chart1"}});
  book.Sheet("Data1").rows.resize(1);
  EXPECT_EQ(Found(book),
            List{"There is no table 'Data1', because its sheet has no row of data; there are none."});

  book = SalesBook({over("table-id=\"VEX_TableRange1\"")});
  book.sheets.push_back({"Sheet2", {{S("Empty")}, {}, {S("Region"), S("Product"), S("Amount")}}});
  book.names = {{"VEX_TableRange1", "Sheet2!$A$1:$C$3"}};
  EXPECT_EQ(Found(book),
            (List{"The table 'VEX_TableRange1' has no row of data.",
                  "The table 'VEX_TableRange1' has no label column, which a chart needs; it has Region, "
                  "Product and Amount."}));
}

TEST_F(CheckTest, BucketTablesThatDoNotFit) {
  const auto found = [&](const S& attributes, const auto& change) {
    Definition definition = BucketDefinition();
    definition.attributes = attributes;
    PlainBook book = BucketBook(definition);
    change(book);
    return Found(book);
  };
  const S usual = BucketDefinition().attributes;
  const auto asItIs = [](PlainBook&) {};
  EXPECT_EQ(found("table-id=\"Data1\"", asItIs),
            List{"The definition has no 'strategic-bucket-table-id'; there are VEX_SB1 and Data1."});
  EXPECT_EQ(found(runtime::Replace(usual, "VEX_SB1", "VEX_SB2"), asItIs),
            List{"There is no bucket table 'VEX_SB2'; there are VEX_SB1 and Data1."});
  EXPECT_EQ(found(runtime::Replace(usual, "VEX_SB1", "Data1"), asItIs),
            List{"The table 'Data1' can't be the bucket table of its own chart."});
  EXPECT_EQ(found(usual, [](PlainBook& book) { book.Sheet("Buckets").rows[3][1] = S("much"); }),
            List{"The table 'VEX_SB1' can't be a bucket table, which is a range table with a label column "
                 "followed by a number column."});
  EXPECT_EQ(found(usual, [](PlainBook& book) { book.Sheet("Buckets").rows[2][0] = S("Strategy"); }),
            List{"The bucket table 'VEX_SB1' doesn't match the table 'Data1', which has no label column "
                 "'Strategy'; its label columns are Project, Theme and Bucket."});
}

TEST_F(CheckTest, UnsuitableCells) {
  const auto found = [&](const auto& change) {
    PlainBook book = SalesBook({{"VEX_Chart1"}});
    change(book.Sheet("Data1").rows);
    return Found(book);
  };
  using Rows = std::vector<PlainRow>;
  const RawCell error{" t=\"e\"><v>#N/A</v></c>"}, formula{kFormula};
  EXPECT_EQ(
      found([&](Rows& rows) { rows[2][2] = rows[4][2] = error; }),
      (List{"Data1!C3: The column 'Amount' isn't a number column, which 'values' needs, because this cell "
            "contains the error #N/A, which counts as 0.",
            "Data1!C3: The column 'Amount' has 2 errors, the first one here, #N/A, which make it a label "
            "column; without them it is a number column."}));
  EXPECT_EQ(found([&](Rows& rows) {
              rows[2][2] = S("n/a");
              rows[3][2] = error;
            }),
            List{"Data1!C3: The column 'Amount' isn't a number column, which 'values' needs, because this "
                 "cell contains the text 'n/a', which counts as 0."});
  const S calculate = "; calculate and save the workbook in a spreadsheet program.";
  EXPECT_EQ(
      found([&](Rows& rows) { rows[1][3] = rows[3][3] = rows[4][3] = formula; }),
      List{"Data1!D2: The column 'Cost' has 3 formulas without a result, the first one here, which count as "
           "blank" +
           calculate});
  EXPECT_EQ(
      found([&](Rows& rows) { rows[0][3] = rows[1][3] = formula; }),
      List{"Data1!D1: The heading is a formula without a result, so its column is ignored" + calculate});
  EXPECT_EQ(
      found([&](Rows& rows) { rows[0][3] = S("AMOUNT"); }),
      List{"Data1!D1: The heading 'AMOUNT' is the same as in Data1!C1, ignoring case, so charts use that "
           "column and never this one."});
  EXPECT_EQ(found([&](Rows& rows) {
              rows[0].push_back(RawCell{"><f>A1</f><v>5</v></c>"});
              rows[1].push_back(RawCell{" t=\"str\"><f>\"\"</f><v></v></c>"});
            }),
            List{});
}

TEST_F(CheckTest, LineBreaksInNamesBreakNoLine) {
  Definition definition{"VEX_Chart1", "column", "table-id=\"VEX_TableRange1\""};
  PlainBook book = SalesBook({definition});
  auto& rows = book.Sheet("Data1").rows;
  rows[0][3] = S("Cost\nin euros");
  rows.insert(rows.begin(), {{S("Sales\nand more")}, {}});
  book.sheets[0].name = "Sales";
  book.names = {{"VEX_TableRange1", "Sales!$A$1:$D$7"}};
  rows[2][2] = S("Price");
  EXPECT_EQ(Check(book).out,
            "VEX_ChartDefinitions!A2  VEX_Chart1  \"Name of VEX_Chart1\"  column chart on sheet Charts, from "
            "table VEX_TableRange1:\n  VEX_ChartDefinitions!A2: The table 'VEX_TableRange1' has no column "
            "'Amount' for 'values'; it has Region, Product, Price and Cost in euros.\n"
            "VEX_TableRange1  \"Sales and more\"  sheet Sales, rows 1 to 7 (4 of data), from column 1; label "
            "Region, label Product, number Price, number Cost in euros: ok\n");
}

TEST_F(CheckTest, DatesAreNumbersToAChart) {
  Definition definition = BubbleDefinition();
  PlainBook book = BubbleBook({{"a", "b", 1, 2, 3}, {"c", "b", 1, 2, 3}}, definition);
  book.styles =
      "<styleSheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"><cellXfs><xf/><xf "
      "numFmtId=\"14\"/></cellXfs></styleSheet>";
  auto& rows = book.Sheet("Data1").rows;
  rows[1][2] = RawCell{" s=\"1\"><v>45000</v></c>"};
  EXPECT_EQ(Found(book), List{});
  rows[2][2] = RawCell{" t=\"e\"><v>#REF!</v></c>"};
  EXPECT_EQ(Found(book), List{"Data1!C3: The column 'Across' isn't a number column, which 'x-values' needs, "
                              "because this cell contains the error #REF!, which counts as 0."})
      << "without the error it would still be a label column";
}

TEST_F(CheckTest, JsonNamesTheEffectOnAWrite) {
  const auto severities = [this](const PlainBook& book) {
    List names;
    const auto json = nlohmann::ordered_json::parse(Check(book, {"--json"}).out);
    for (const auto& definition : json["definitions"]) {
      for (const auto& finding : definition["findings"]) names.push_back(finding["severity"]);
    }
    return names;
  };
  PlainBook book = SalesBook({{"VEX_Chart1", "column", "table-id=\"Gone\""}});
  EXPECT_EQ(severities(book), List{"reports"});
  book = SalesBook({{"VEX_Chart1"}});
  book.Sheet("Charts").frames.clear();
  EXPECT_EQ(severities(book), List{"refuses"});
  book.sheets.push_back({"VEX_ChartData", {{S("VEX_Chart1")}}, 3});
  EXPECT_EQ(severities(book), List{"removes"});
  book = SalesBook({{"VEX_Chart1"}});
  book.sheets.pop_back();
  book.AddDefinitions({"", Definition{"VEX_Chart1"}.Xml()});
  EXPECT_EQ(severities(book), List{"blocks-edits"});
}

TEST_F(CheckTest, JsonHasTheSameContent) {
  PlainBook book = SalesBook({{"VEX_Chart1", "column", "table-id=\"Gone\""}});
  book.Sheet("Data1").rows[1][3] = RawCell{kFormula};
  book.names = {{"VEX_SB1", "#REF!"}};
  const auto result = Check(book, {"--json"});
  EXPECT_EQ(result.code, 1);
  const auto json = nlohmann::ordered_json::parse(result.out);
  EXPECT_EQ(json["definitions"], nlohmann::ordered_json::parse(R"([{
    "place": "VEX_ChartDefinitions!A2", "id": "VEX_Chart1", "name": "Name of VEX_Chart1", "type": "column",
    "table": "Gone", "chartSheet": "Charts",
    "findings": [{"place": "VEX_ChartDefinitions!A2", "kind": "table",
                  "severity": "reports",
                  "sentence": "There is no table 'Gone'; there is Data1; a sheet is a table only if its name is exactly one of Data1 to Data5."}]}])"));
  ASSERT_EQ(json["tables"].size(), 2u);
  const auto& table = json["tables"][0];
  EXPECT_EQ(table["columns"], nlohmann::ordered_json::parse(
                                  RunCommand({"tables", folder_ / "book.xlsx", "--json"}).out)[0]["columns"]);
  EXPECT_EQ(table["findings"][0]["kind"], "cells");
  EXPECT_EQ(table["findings"][0]["place"], "Data1!D2");
  EXPECT_EQ(json["tables"][1]["id"], "VEX_SB1");
  EXPECT_EQ(json["tables"][1]["findings"][0]["kind"], "table");
}

}  // namespace
}  // namespace plotsmith::cli

#include <algorithm>

#include "builder/BuilderVariables.h"
#include "builder/SourceValidation.h"
#include "common/CommonFunctions.h"
#include "common/RunVariables.h"
#include "metadata/TableDefinitions.h"
#include "tests/support/BlockTest.h"
#include "xlsx/Worksheet.h"

namespace plotsmith {
namespace {

using test::Columns;
using test::Definition;
using test::PlainBook;
using S = std::string;

class PivotTest : public test::BlockTest {
 protected:
  void OpenSales() { Open(test::SalesBook({})); }
};

TEST_F(PivotTest, TheFiveWaysToLayATableOut) {
  struct Case {
    const char* what;
    S categories, series, values, block;
  };
  const S region = Columns("categories", {"Region"}, "rows"),
          amounts = Columns("categories", {"Amount", "Cost"});
  const S none = "<series headings-in=\"none\"/>", value = "<values><column name=\"Amount\"/></values>";
  const Case cases[] = {
      {"rows, rows", region, Columns("series", {"Product"}, "rows"), value,
       "|Widget|Gadget\nEast|11|7\nWest|5|"},
      {"rows, columns", region, Columns("series", {"Amount", "Cost"}), "",
       "|Amount|Cost\nEast|18|13\nWest|5|4"},
      {"columns, rows", amounts, Columns("series", {"Product"}, "rows"), "",
       "|Widget|Gadget\nAmount|16|7\nCost|12|5"},
      {"rows, none", region, none, value, "|Amount\nEast|18\nWest|5"},
      {"columns, none", amounts, none, "", "|Value\nAmount|23\nCost|17"},
      {"columns, none with a value column", amounts, none, value, "|Amount|Value\nAmount||23\nCost||17"},
      {"columns on both sides place nothing", amounts, Columns("series", {"Amount"}), "",
       "|Amount\nAmount|\nCost|"},
      {"the last of several category columns counts", Columns("categories", {"Product", "Region"}, "rows"),
       none, value, "|Amount\nWidget|\nGadget|\nEast|18\nWest|5"},
      {"rows, none without values", region, none, "", "(no map)"},
      {"values without a column", region, none, "<values/>", "(no map)"},
      {"a heading twice", Columns("categories", {"Amount", "AMOUNT"}), none, "", "(no map)"},
  };
  OpenSales();
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(Block({"VEX_Chart1", "column", "table-id=\"Data1\"", c.categories, c.series, c.values}),
              c.block);
  }
  ASSERT_EQ(Messages().size(), 3u);
  EXPECT_EQ(
      Messages()[0],
      "Brindle Plotsmith: PSChartBuilder.BuildPivotMap\nFailed to populate a data definition collection");
  EXPECT_TRUE(Messages()[1].ends_with("\nObject variable or With block variable not set"));
  EXPECT_EQ(Messages()[2],
            "Brindle Plotsmith: PSChartBuilder.BuildPivotMap\nThis key is already associated with an element "
            "of this collection");
}

TEST_F(PivotTest, ValidationCarriesTheTablesGeometryIntoTheDefinition) {
  OpenSales();
  RetrieveTableDefinitions();
  auto document = NewXMLDocument();
  ASSERT_TRUE(
      document.loadXML("<chart name=\"C\" table-id=\"Data1\"><categories><column name=\"REGION\"/>"
                       "<column name=\"Nowhere\"/><column name=\"Cost\"/></categories></chart>"));
  auto chart = document.documentElement();
  EXPECT_FALSE(ValidateSourceData(chart));
  EXPECT_EQ(Messages().back(),
            "Brindle Plotsmith: Chart 'C' has become unavailable because column 'Nowhere'\nin table "
            "'Data1' is missing or contains invalid data.");
  EXPECT_EQ(document.xml(),
            "<chart name=\"C\" table-id=\"Data1\" table-worksheet=\"Data1\" table-top-row=\"1\" "
            "table-left-column=\"1\" "
            "table-height=\"5\" header-row-count=\"1\"><categories><column name=\"REGION\" "
            "worksheet-column-number=\"1\"/>"
            "<column name=\"Nowhere\"/><column name=\"Cost\"/></categories></chart>")
      << "what was carried before the failure stays, what lies behind it isn't touched";
}

TEST_F(PivotTest, WhatMakesAChartUnavailable) {
  PlainBook book = test::SalesBook({});
  test::PlainSheet bare{"Bare"};
  bare.rows = {{S("Only a title")}, {}, {S("Region"), S("Amount")}};
  test::PlainSheet buckets{"Buckets"};
  buckets.rows = {{S("B")}, {}, {S("Product"), S("Amount")}, {S("Widget"), 5.0}};
  test::PlainSheet strangers = buckets;
  strangers.name = "Strangers";
  strangers.rows[2] = {S("Product"), S("Weight")};
  book.sheets.insert(book.sheets.end(), {bare, buckets, strangers});
  book.names = {{"VEX_TableRangeBare", "Bare!$A$1:$B$3"},
                {"VEX_SB1", "Buckets!$A$1:$B$4"},
                {"VEX_SB2", "Strangers!$A$1:$B$4"}};
  Open(book);
  RetrieveTableDefinitions();
  const std::pair<const char*, const char*> cases[] = {
      {"table-id=\"Gone\"",
       "Chart 'C' has become unavailable because its source table no longer exists in this workbook."},
      {"table-id=\"VEX_TableRangeBare\"",
       "Chart 'C' has become unavailable because table 'Only a title' \ncurrently contains no data.The chart "
       "will reappear "
       "the next time the table is refreshed with one or more rows of data."},
      {"table-id=\"Data1\" strategic-bucket-table-id=\"Gone\"",
       "Chart 'C' has become unavailable because its strategic bucket table no longer exists in this "
       "workbook."},
      {"table-id=\"Data1\" strategic-bucket-table-id=\"VEX_SB2\"",
       "Chart 'C' has become unavailable because its strategic bucket table doesn't match the source table."},
      {"table-id=\"Data1\" strategic-bucket-table-id=\"VEX_SB1\"", ""},
      {"table-id=\"Data1\" strategic-bucket-table-id=\"\"", ""}};
  for (const auto& [attributes, message] : cases) {
    auto document = NewXMLDocument();
    ASSERT_TRUE(document.loadXML("<chart name=\"C\" " + S(attributes) + "/>"));
    auto chart = document.documentElement();
    const std::size_t before = Messages().size();
    EXPECT_EQ(ValidateSourceData(chart), S(message).empty()) << attributes;
    const S said = Messages().size() > before ? Messages().back() : "";
    EXPECT_EQ(said, S(message).empty() ? "" : "Brindle Plotsmith: " + S(message));
    if (S(attributes).find("VEX_SB1") != S::npos) {
      EXPECT_EQ(GetAttributeText(chart, "bucket-name-column-position"), "2");
      EXPECT_EQ(GetAttributeText(chart, "bucket-value-column-position"), "3");
    }
  }
}

TEST_F(PivotTest, TheLimitOfSeriesIsMetOnTwoRoads) {
  // 254 names, then one that is known already; then a new one
  const auto rows = [&](int names, const S& last) {
    PlainBook book;
    test::PlainSheet sheet{"Data1"};
    sheet.rows.push_back({S("Region"), S("Product"), S("Amount")});
    for (int i = 1; i <= names; ++i) sheet.rows.push_back({S("R"), "P" + std::to_string(i), 1.0});
    if (!last.empty()) sheet.rows.push_back({S("R"), last, 1.0});
    book.sheets.push_back(sheet);
    return book;
  };
  struct Case {
    int names;
    S last;
    std::size_t messages;
  };
  for (const Case& c : {Case{254, "", 0}, Case{254, "p1", 1}, Case{254, "new", 1}, Case{253, "new", 0}}) {
    SCOPED_TRACE(c.last);
    const std::size_t before = Messages().size();
    Open(rows(c.names, c.last));
    const S block = Block({"VEX_Chart1"});
    EXPECT_EQ(mSeriesCount, 254);
    ASSERT_EQ(Messages().size() - before, c.messages);
    if (c.messages > 0) {
      EXPECT_EQ(Messages().back(), test::kLimitMessage);
    }
    EXPECT_EQ(Cells("VEX_ChartData", 2, 3, 2, 3), c.last == "p1" ? "2" : "1") << "known names still add up";
  }

  PlainBook wide;
  test::PlainSheet sheet{"Data1"};
  sheet.rows.resize(2);
  S series = "<series headings-in=\"columns\">";
  sheet.rows[0].push_back(S("Region"));
  sheet.rows[1].push_back(S("R"));
  for (int i = 1; i <= 300; ++i) {
    sheet.rows[0].push_back("C" + std::to_string(i));
    sheet.rows[1].push_back(static_cast<double>(i));
    series += "<column name=\"C" + std::to_string(i) + "\"/>";
  }
  wide.sheets.push_back(sheet);
  Open(wide);
  const std::size_t before = Messages().size();
  Definition definition{"VEX_Chart1"};
  definition.series = series + "</series>";
  definition.values = "";
  Block(definition);
  EXPECT_EQ(mSeriesCount, 254);
  ASSERT_EQ(Messages().size() - before, 1u);
  EXPECT_EQ(Messages().back(), test::kLimitMessage);
  EXPECT_EQ(Cells("VEX_ChartData", 1, 256, 2, 257), "C254|\n254|");
}

TEST_F(PivotTest, CellsCountByWhatTheyShow) {
  PlainBook book;
  test::PlainSheet sheet{"Data1"};
  const auto day = [](const S& serial, const S& style) {
    return test::RawCell{" s=\"" + style + "\"><v>" + serial + "</v></c>"};
  };
  sheet.rows = {{S("Day"), S("Amount")},
                {day("43831", "1"), 1.0},
                {day("43831", "2"), 2.0},
                {day("43862", "2"), 4.0},
                {day("43832", "2"), 8.0},
                {{}, S("text")},
                {S("2020"), test::RawCell{" t=\"e\"><v>#DIV/0!</v></c>"}},
                {2020.0, S("$16")},
                {S("x"), test::RawCell{" t=\"b\"><v>1</v></c>"}}};
  book.sheets.push_back(sheet);
  book.styles =
      "<styleSheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"><numFmts><numFmt "
      "numFmtId=\"200\" "
      "formatCode=\"mmm yy\"/></numFmts><cellXfs><xf numFmtId=\"0\"/><xf numFmtId=\"14\"/><xf "
      "numFmtId=\"200\"/></cellXfs>"
      "</styleSheet>";
  Open(book);
  Definition definition{"VEX_Chart1", "column", "table-id=\"Data1\" number-format=\"0.0\""};
  definition.categories = Columns("categories", {"Day"}, "rows");
  definition.series = "<series headings-in=\"none\"/>";
  // a text and an error add nothing, a numeric text its number, True is -1
  EXPECT_EQ(Block(definition), "|Amount\n1/1/2020|1.0\nJan 20|10.0\nFeb 20|4.0\n|0.0\n2020|16.0\nx|-1.0");
  EXPECT_EQ(Book().FindWorksheet("VEX_ChartData")->CellValueAt(6, 2).kind, excel::CellValue::Kind::kText)
      << "a year as category stays a text";
}

TEST_F(PivotTest, ABlockIsMadeToFitInItsPlace) {
  OpenSales();
  Definition first{"VEX_Chart1"}, second{"VEX_Chart2"};
  Block(first);
  Block(second);
  EXPECT_EQ(Cells("VEX_ChartData", 1, 1, 7, 1),
            "VEX_Chart1\nVEX_Chart1\nVEX_Chart1\nVEX_Chart2\nVEX_Chart2\nVEX_Chart2\n");
  // grows by one row and a column fewer, then shrinks again
  first.categories = Columns("categories", {"Product", "Region"}, "rows");
  first.series = "<series headings-in=\"none\"/>";
  EXPECT_EQ(Block(first), "|Amount\nWidget|\nGadget|\nEast|18\nWest|5");
  EXPECT_EQ(
      Cells("VEX_ChartData", 1, 1, 9, 1),
      "VEX_Chart1\nVEX_Chart1\nVEX_Chart1\nVEX_Chart1\nVEX_Chart1\nVEX_Chart2\nVEX_Chart2\nVEX_Chart2\n");
  EXPECT_EQ(Cells("VEX_ChartData", 1, 4, 1, 4), "Gadget") << "what lies right of a narrower block stays";
  first.categories = Columns("categories", {"Region"}, "rows");
  EXPECT_EQ(Block(first), "|Amount\nEast|18\nWest|5");
  EXPECT_EQ(Cells("VEX_ChartData", 4, 1, 7, 3),
            "VEX_Chart2||Widget\nVEX_Chart2|East|11\nVEX_Chart2|West|5\n||");
  const auto moved = [&](const S& line) {
    return line.find(".Insert") != S::npos || line.find(".Delete") != S::npos;
  };
  std::vector<std::string> rows;
  std::copy_if(journal_.begin(), journal_.end(), std::back_inserter(rows), moved);
  EXPECT_EQ(rows, (std::vector<std::string>{"Sheets(\"VEX_ChartData\").Rows(3).Insert",
                                            "Sheets(\"VEX_ChartData\").Rows(3).Insert",
                                            "Sheets(\"VEX_ChartData\").Rows(3).Delete(-4162)",
                                            "Sheets(\"VEX_ChartData\").Rows(3).Delete(-4162)"}));
}

TEST_F(PivotTest, AFormatThatIsNoneStopsTheBlockWithBothMessages) {
  OpenSales();
  EXPECT_EQ(Block({"VEX_Chart1", "column", "table-id=\"Data1\" number-format=\"0.0.&quot;\""}), "(no block)");
  ASSERT_EQ(Messages().size(), 2u);
  EXPECT_TRUE(Messages()[0].starts_with("Brindle Plotsmith: PSChartBuilder.MoveToDataSheet\n"));
  EXPECT_TRUE(Messages()[1].starts_with(
      "Brindle Plotsmith: PSChartBuilder.PopulateDataSheetOffi2007\nUnable to set"));
}

}  // namespace
}  // namespace plotsmith

#include <algorithm>
#include <vector>

#include "builder/sheet/DataSheet.h"
#include "tests/support/BlockTest.h"
#include "tests/support/ErrorOf.h"
#include "xlsx/Worksheet.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

class DataSheetTest : public test::BlockTest {};

TEST_F(DataSheetTest, CellsCountByTheirDisplayedText) {
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
      "<styleSheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"><numFmts>"
      "<numFmt numFmtId=\"200\" formatCode=\"mmm yy\"/></numFmts><cellXfs><xf numFmtId=\"0\"/>"
      "<xf numFmtId=\"14\"/><xf numFmtId=\"200\"/></cellXfs></styleSheet>";
  Open(book);
  Definition definition{"VEX_Chart1", "column", "table-id=\"Data1\" number-format=\"0.0\""};
  definition.categories = Columns("categories", {"Day"}, "rows");
  definition.series = "<series headings-in=\"none\"/>";
  // A text and an error add nothing, a numeric text adds its number, and True adds -1.
  EXPECT_EQ(Block(definition), "|Amount\n1/1/2020|1.0\nJan 20|10.0\nFeb 20|4.0\n|0.0\n2020|16.0\nx|-1.0");
  EXPECT_EQ(Book().FindWorksheet("VEX_ChartData")->CellValueAt(6, 2).kind, excel::CellValue::Kind::kText)
      << "a year as a category remains a text";
}

TEST_F(DataSheetTest, ABlockLargerThanASheetIsRefusedBeforeItTakesMemory) {
  EXPECT_EQ(test::ErrorOf([] { Rectangle(1'000'000, 254); }), runtime::error::kOutOfMemory);
  EXPECT_EQ(test::ErrorOf([] { Rectangle(100, 254).At(101, 1); }), runtime::error::kSubscript);
}

TEST_F(DataSheetTest, ABlockIsResizedInPlace) {
  Open(test::SalesBook({}));
  Definition first{"VEX_Chart1"}, second{"VEX_Chart2"};
  Block(first);
  Block(second);
  EXPECT_EQ(Cells("VEX_ChartData", 1, 1, 7, 1),
            "VEX_Chart1\nVEX_Chart1\nVEX_Chart1\nVEX_Chart2\nVEX_Chart2\nVEX_Chart2\n");
  // The block grows by a row and loses a column, then shrinks again.
  first.categories = Columns("categories", {"Product", "Region"}, "rows");
  first.series = "<series headings-in=\"none\"/>";
  EXPECT_EQ(Block(first), "|Amount\nWidget|\nGadget|\nEast|18\nWest|5");
  EXPECT_EQ(
      Cells("VEX_ChartData", 1, 1, 9, 1),
      "VEX_Chart1\nVEX_Chart1\nVEX_Chart1\nVEX_Chart1\nVEX_Chart1\nVEX_Chart2\nVEX_Chart2\nVEX_Chart2\n");
  EXPECT_EQ(Cells("VEX_ChartData", 1, 4, 1, 4), "Gadget")
      << "cells to the right of a narrower block are kept";
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

TEST_F(DataSheetTest, AnInvalidFormatStopsTheBlockWithBothMessages) {
  Open(test::SalesBook({}));
  EXPECT_EQ(Block({"VEX_Chart1", "column", "table-id=\"Data1\" number-format=\"0.0.&quot;\""}), "(no block)");
  ASSERT_EQ(Messages().size(), 2u);
  EXPECT_TRUE(Messages()[0].starts_with("Brindle Plotsmith: PSChartBuilder.MoveToDataSheet\n"));
  EXPECT_TRUE(Messages()[1].starts_with(
      "Brindle Plotsmith: PSChartBuilder.PopulateDataSheetOffi2007\nUnable to set"));
}

}  // namespace
}  // namespace plotsmith

#include "common/Documents.h"
#include "common/RunVariables.h"
#include "common/Values.h"
#include "metadata/StrategicBuckets.h"
#include "metadata/TableDefinitions.h"
#include "tests/support/HostTest.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

class TableDefinitionsTest : public HostTest {
 protected:
  std::string Ids() {
    RetrieveTableDefinitions();
    std::string ids;
    for (const auto& document : *colTables)
      ids += GetAttributeText(document.selectSingleNode("table"), "id") + " ";
    return ids;
  }
  std::string Xml(const std::string& id) { return colTables->Item(id).xml(); }
  /// Returns the columns of Data1 with the first letters of their kinds.
  std::string Kinds() {
    Ids();
    std::string kinds;
    for (const auto& column : colTables->Item("Data1").selectSingleNode("table").childElements()) {
      kinds += GetAttributeText(column, "name") + "=" + column.tagName().substr(0, 1) + " ";
    }
    return kinds;
  }
};

/// Returns a sheet with title, blank row, headings and two data rows, beginning at B3.
PlainSheet RangeSheet(const std::string& name) {
  PlainSheet sheet{name};
  sheet.top = 3;
  sheet.left = 2;
  sheet.rows = {{S("Investments")},
                {},
                {S("Bucket"), S("Amount"), {}, S("Note")},
                {S("Grow"), 10.0, 1.0, S("x")},
                {S("Run"), 20.0, 2.0, 5.0}};
  return sheet;
}

TEST_F(TableDefinitionsTest, RangeTableOfANameInAnyCaseOnAQuotedSheet) {
  PlainBook book;
  book.sheets.push_back(RangeSheet("It's a sheet"));
  book.names = {{"vex_tablerange_1", "'It''s a sheet'!$B$3:$C$7"}};
  Open(book);
  EXPECT_EQ(Ids(), "vex_tablerange_1 ");
  // The width comes from the used range and not from the name, so Note belongs to the table.
  EXPECT_EQ(Xml("vex_tablerange_1"),
            "<table id=\"vex_tablerange_1\" name=\"Investments\" table-worksheet=\"It's a sheet\" "
            "table-top-row=\"3\" table-left-column=\"2\" table-height=\"5\" header-row-count=\"3\" "
            "label-column-count=\"2\" number-column-count=\"1\" is-bucket-candidate=\"yes\" "
            "bucket-name-column=\"Bucket\" bucket-value-column=\"Amount\"><label-column name=\"Bucket\" "
            "worksheet-column-number=\"2\"/><number-column name=\"Amount\" worksheet-column-number=\"3\"/>"
            "<label-column name=\"Note\" worksheet-column-number=\"5\"/></table>");
  EXPECT_TRUE(Messages().empty());
}

TEST_F(TableDefinitionsTest, NamesThatAreNoTables) {
  PlainBook book;
  book.sheets = {RangeSheet("Sheet1"), RangeSheet("VEX_SBold")};
  book.names = {{"VEX_SB_constant", "42"},
                {"VEX_SB_text", "\"Sheet1!$A$1\""},
                {"VEX_SB_computed", "OFFSET(Sheet1!$B$3,0,0,5,2)"},
                {"VEX_SB_gone", "Sheet1!#REF!"},
                {"VEX_SB_elsewhere", "Nowhere!$B$3:$C$7"},
                {"VEX_SB_two_rows", "Sheet1!$B$3:$C$4"},
                {"VEX_S_not_ours", "Sheet1!$B$3:$C$7"},
                {"VEX_TableRang", "Sheet1!$B$3:$C$7"},
                {"vex_sb_lower", "sheet1!$B$3:$C$7"},
                {"VEX_TABLERANGE", "Sheet1!$B$3:$C$7,Sheet1!$F$1"}};
  // a name that belongs to one sheet: VEX_SBold!Print_Area
  const std::string path = folder_ / "names.xlsx";
  book.Write(path);
  EditPart(path, "/xl/workbook.xml", [](std::string& workbook) {
    workbook.insert(
        workbook.find("</definedNames>"),
        "<definedName name=\"_xlnm.Print_Area\" localSheetId=\"1\">VEX_SBold!$B$3:$C$7</definedName>");
  });
  OpenFile(path);
  EXPECT_EQ(Ids(), "vex_sb_lower VEX_TABLERANGE ") << "sorted by name, independent of the file's order";
  EXPECT_EQ(Messages().size(), 0u);
  EXPECT_NE(Xml("vex_sb_lower").find("table-worksheet=\"sheet1\""), std::string::npos)
      << "in the spelling of the name";
}

TEST_F(TableDefinitionsTest, DataSheetsByTheirExactNames) {
  PlainBook book;
  book.sheets = {SalesSheet("Data3"), SalesSheet("data1"), SalesSheet("Data6"), PlainSheet{"Data2"}};
  book.sheets[3].rows = {{S("Heading"), S("only")}};
  Open(book);
  EXPECT_EQ(Ids(), "Data3 ");
  EXPECT_NE(Xml("Data3").find("is-bucket-candidate=\"no\""), std::string::npos);
  EXPECT_EQ(Xml("Data3").find("bucket-name-column"), std::string::npos);
}

TEST_F(TableDefinitionsTest, ClassifiesColumns) {
  PlainBook book;
  PlainSheet sheet{"Data1"};
  const RawCell date{" s=\"1\"><v>43831</v></c>"}, time{" s=\"2\"><v>1.5</v></c>"},
      error{" t=\"e\"><v>#N/A</v></c>"}, truth{" t=\"b\"><v>1</v></c>"};
  sheet.rows = {{S("blank"),
                 S("spaces"),
                 S("numeric text"),
                 S("text"),
                 S("date"),
                 S("error"),
                 S("truth"),
                 {},
                 S("2020"),
                 S("time")},
                {{}, S("  "), S("$1,5"), 1.0, date, 1.0, truth, S("unheaded"), 1.0, time},
                {{}, 5.0, 2.0, S("x"), 1.0, error, 2.0, 1.0, 2.0}};
  book.sheets.push_back(sheet);
  book.styles =
      "<styleSheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"><cellXfs>"
      "<xf numFmtId=\"0\"/><xf numFmtId=\"14\"/><xf numFmtId=\"46\"/></cellXfs></styleSheet>";
  Open(book);
  EXPECT_EQ(Kinds(), "blank=n spaces=n numeric text=n text=l date=l error=l truth=n 2020=n time=n ");
}

TEST_F(TableDefinitionsTest, TextsAfterBlankCellsAreFound) {
  PlainBook book;
  PlainSheet sheet{"Data1"};
  // The last row of the sheet, followed in the file by a row above it.
  const RawCell rows{
      "/></row><row r=\"1048576\"><c r=\"B1048576\" t=\"str\"><v>x</v></c><c r=\"C1048576\"><v>1</v>"
      "</c></row><row r=\"9\"><c r=\"C9\"><v>1</v></c><c r=\"D9\" t=\"str\"><v>x</v></c>"};
  sheet.rows = {{S("none"), S("last"), S("numbers"), S("stray")}, {{}, 1.0, {}, 1.0, rows}};
  book.sheets.push_back(sheet);
  Open(book);
  EXPECT_EQ(Kinds(), "none=n last=l numbers=n stray=l ");
}

TEST_F(TableDefinitionsTest, UntitledTableAndBucketColumnsInTheWrongPlace) {
  PlainBook book;
  PlainSheet sheet = RangeSheet("Sheet1");
  sheet.rows[0] = {};
  sheet.rows[2] = {S("Amount"), S("Bucket")};
  sheet.rows[3] = {1.0, S("Grow")};
  sheet.rows[4] = {2.0, S("Run")};
  book.sheets.push_back(sheet);
  book.names = {{"VEX_TableRange1", "Sheet1!$B$3:$C$7"}};
  Open(book);
  Ids();
  EXPECT_NE(Xml("VEX_TableRange1").find("name=\"[no title]\""), std::string::npos);
  EXPECT_NE(Xml("VEX_TableRange1").find("is-bucket-candidate=\"no\" bucket-name-column=\"\""),
            std::string::npos);
}

TEST_F(TableDefinitionsTest, BucketTablesAndTheirTotals) {
  PlainBook book;
  PlainSheet source = RangeSheet("Source"), buckets = RangeSheet("Buckets"), foreign = RangeSheet("Foreign");
  buckets.rows[2] = {S("BUCKET"), S("amount")};
  buckets.rows[3] = {S("Grow"), 10.0};
  buckets.rows[4] = {S("GROW"), S("5")};
  buckets.rows.push_back({{}, 3.0});
  foreign.rows[2] = {S("Other"), S("Amount")};
  book.sheets = {source, buckets, foreign};
  book.names = {{"VEX_TableRange1", "Source!$B$3:$F$7"},
                {"VEX_SB1", "Buckets!$B$3:$C$8"},
                {"VEX_SB2", "Foreign!$B$3:$C$7"}};
  Open(book);
  RetrieveTableDefinitions();
  const auto candidates = GetBucketCandidates(colTables->Item("VEX_TableRange1").selectSingleNode("table"));
  ASSERT_EQ(candidates->Count(), 1);
  EXPECT_TRUE(CollectionHasKey("VEX_SB1", candidates));
  const auto totals = GetStrategicBuckets(colTables->Item("VEX_SB1"));
  ASSERT_EQ(totals->Count(), 2);
  EXPECT_EQ(totals->Item("GROW"), runtime::Variant(15.0));
  EXPECT_EQ(totals->Item(""), runtime::Variant(3.0));
}

}  // namespace
}  // namespace plotsmith

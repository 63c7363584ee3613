#include "builder/SourceValidation.h"
#include "common/Documents.h"
#include "metadata/TableDefinitions.h"
#include "tests/support/HostTest.h"

namespace plotsmith {
namespace {

using test::PlainBook;
using S = std::string;

class SourceValidationTest : public test::HostTest {};

TEST_F(SourceValidationTest, ValidationStoresTheTablesPositionInTheDefinition) {
  Open(test::SalesBook({}));
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
            "table-left-column=\"1\" table-height=\"5\" header-row-count=\"1\"><categories>"
            "<column name=\"REGION\" worksheet-column-number=\"1\"/><column name=\"Nowhere\"/>"
            "<column name=\"Cost\"/></categories></chart>")
      << "values stored before the failure are kept, and later ones aren't changed";
}

TEST_F(SourceValidationTest, UnavailableCharts) {
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
       "will reappear the next time the table is refreshed with one or more rows of data."},
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

}  // namespace
}  // namespace plotsmith

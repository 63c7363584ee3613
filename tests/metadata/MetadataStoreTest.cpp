#include <array>
#include <vector>

#include "common/Documents.h"
#include "common/RunVariables.h"
#include "metadata/MetadataStore.h"
#include "metadata/NewChart.h"
#include "metadata/TableDefinitions.h"
#include "tests/support/HostTest.h"
#include "xlsx/Worksheet.h"

namespace plotsmith {
namespace {

using namespace test;

class MetadataStoreTest : public HostTest {
 protected:
  void Load() {
    RetrieveTableDefinitions();
    RetrieveChartDefinitions();
  }
  std::string Ids() {
    std::string ids;
    for (const auto& document : *colCharts)
      ids += GetAttributeText(document.selectSingleNode("chart"), "id") + " ";
    return ids;
  }
  std::string Attribute(const std::string& id, const char* name) {
    return GetAttributeText(colCharts->Item(id).selectSingleNode("chart"), name);
  }
  /// Returns the beginning of each row of the sheet of definitions.
  std::string Rows(int count) {
    std::string text;
    for (int row = 1; row <= count; ++row)
      text += Cells("VEX_ChartDefinitions", row, 1, row, 1).substr(0, 22) + "\n";
    return text;
  }
};

TEST_F(MetadataStoreTest, ADefinitionIsStoredInItsCurrentRow) {
  Open(SalesBook({{"VEX_Chart1"}, {"VEX_Chart2"}}));
  Load();
  SaveChartDefinition(colCharts->Item("VEX_Chart1"));
  SaveChartDefinition(colCharts->Item("VEX_Chart2"));
  const auto sheet = Book().FindWorksheet("VEX_ChartDefinitions");
  const std::string first = Cells("VEX_ChartDefinitions", 2, 1, 2, 1),
                    second = Cells("VEX_ChartDefinitions", 3, 1, 3, 1);
  sheet->SetCellValueAt(2, 1, std::string("<chart id=\"VEX_Chart1\""));  // damaged meanwhile
  sheet->SetCellValueAt(3, 1, first);
  sheet->SetCellValueAt(4, 1, second);
  auto document = colCharts->Item("VEX_Chart1");
  document.documentElement().setAttribute("title", "New");
  SaveChartDefinition(document);
  EXPECT_EQ(Cells("VEX_ChartDefinitions", 2, 1, 5, 1),
            "<chart id=\"VEX_Chart1\"\n" + document.xml() + "\n" + second + "\n");
  EXPECT_TRUE(Messages().empty());
}

TEST_F(MetadataStoreTest, UnusableRowsAreRemovedAndTheOthersKeepTheirOrder) {
  PlainBook book = SalesBook({{"VEX_Chart1"}, {"VEX_Chart2"}, {"VEX_Chart3"}});
  auto& rows = book.Sheet("VEX_ChartDefinitions").rows;
  using Row = PlainRow;
  const std::vector<Row> old = rows;
  // Not XML; no chart in the workbook; a second row with an id; no chart element; no id, beside a foreign
  // chart without alternative text.
  book.Sheet("Charts").frames.push_back({"", "", 0, 60});
  rows = {old[0],
          old[1],
          Row{std::string("<chart id=")},
          Row{Definition{"VEX_Chart9"}.Xml()},
          old[3],
          Row{Definition{"VEX_Chart1", "bar"}.Xml()},
          Row{std::string("<table id=\"VEX_Chart2\"/>")},
          Row{Definition{""}.Xml()},
          old[2]};
  Open(book);
  Load();
  EXPECT_EQ(Ids(), "VEX_Chart1 VEX_Chart3 VEX_Chart2 ");
  EXPECT_EQ(Attribute("VEX_Chart1", "type"), "column") << "the first of two rows counts";
  EXPECT_EQ(Rows(5),
            "Plotsmith Version 2.0\n<chart id=\"VEX_Chart1\"\n<chart id=\"VEX_Chart3\"\n<chart "
            "id=\"VEX_Chart2\"\n\n");
  EXPECT_TRUE(Messages().empty());
}

TEST_F(MetadataStoreTest, AMissingSheetIsAddedAndTheActiveSheetStays) {
  PlainBook book;
  book.sheets = {SalesSheet(), SalesSheet("Second")};
  book.workbookExtra = "<bookViews><workbookView activeTab=\"1\"/></bookViews>";
  Open(book);
  Load();
  EXPECT_EQ(oWorkbook->ActiveSheet()->Name(), "Second");
  SaveAndReopen();
  EXPECT_EQ(oWorkbook->ActiveSheet()->Name(), "Second");
  ASSERT_EQ(oWorkbook->Sheets()->Count(), 3);
  const auto sheet = oWorkbook->Sheets()->Item(3);
  EXPECT_EQ(sheet->Name(), "VEX_ChartDefinitions");
  EXPECT_EQ(sheet->Visible(), excel::xlSheetVeryHidden);
  EXPECT_EQ(Cells("VEX_ChartDefinitions", 1, 1, 2, 1), "Plotsmith Version 2.0\n");
}

TEST_F(MetadataStoreTest, ProtectedStructureGivesNoSheet) {
  PlainBook book;
  book.sheets = {SalesSheet()};
  book.workbookExtra = "<workbookProtection lockStructure=\"1\"/>";
  Open(book);
  Load();
  ASSERT_EQ(Messages(),
            std::vector<std::string>{"Brindle Plotsmith: Unable to create the metadata worksheet"});
  EXPECT_EQ(colCharts->Count(), 0);
}

TEST_F(MetadataStoreTest, FollowsChartsAndTablesAndMarksMissingOnes) {
  PlainBook book = SalesBook(
      {{"VEX_Chart1", "column", "table-id=\"Data1\" chart-worksheet=\"Old\""},
       {"VEX_Chart2", "column", "table-id=\"Gone\""},
       {"VEX_Chart3", "column", "table-id=\"VEX_TableRange1\""},
       {"VEX_Chart4", "strategic bucket", "table-id=\"Data1\" strategic-bucket-table-id=\"Data1\""}});
  PlainSheet emptied{"Emptied"};
  emptied.rows = {{std::string("Title")}, {}, {std::string("A"), std::string("B")}};
  book.sheets.push_back(emptied);
  book.names = {{"VEX_TableRange1", "Emptied!$A$1:$B$3"}};
  Open(book);
  Load();
  const std::pair<const char*, std::array<const char*, 3>> cases[] = {
      {"VEX_Chart1", {"Charts", "Data1", "no"}},
      {"VEX_Chart2", {"Charts", "[Deleted]", "yes"}},
      {"VEX_Chart3", {"Charts", "Emptied", "yes"}},
      {"VEX_Chart4", {"Charts", "Data1", "yes"}}};
  for (const auto& [id, expected] : cases) {
    EXPECT_EQ(Attribute(id, "chart-worksheet"), expected[0]) << id;
    EXPECT_EQ(Attribute(id, "table-worksheet"), expected[1]) << id;
    EXPECT_EQ(Attribute(id, "table-corrupted"), expected[2]) << id;
  }
  EXPECT_EQ(Rows(2).find("Charts"), std::string::npos)
      << "corrections of the load stay in memory until they are saved";
}

TEST_F(MetadataStoreTest, SaveReplacesARowOrAppendsOne) {
  PlainBook book = SalesBook({{"VEX_Chart1"}, {"VEX_Chart2"}});
  Open(book);
  Load();
  auto document = colCharts->Item("VEX_Chart1");
  document.documentElement().setAttribute("title", "Ümläut & <more>\n\"lines\"");
  SaveChartDefinition(document);
  CreateChartDoc();
  SaveChartDefinition(oChartDoc);
  SaveAndReopen();
  EXPECT_EQ(Rows(5),
            "Plotsmith Version 2.0\n<chart id=\"VEX_Chart1\"\n<chart id=\"VEX_Chart2\"\n<chart "
            "ps-chart-schema\n\n");
  Load();
  EXPECT_EQ(Attribute("VEX_Chart1", "title"), "Ümläut & <more>\n\"lines\"");
  EXPECT_EQ(Attribute("VEX_Chart1", "ps-chart-schema-version"), "2");
  EXPECT_EQ(Attribute("VEX_Chart2", "ps-chart-schema-version"), "");

  auto huge = colCharts->Item("VEX_Chart2");
  huge.documentElement().setAttribute("title", std::string(33000, 'x'));
  SaveChartDefinition(huge);
  ASSERT_EQ(Messages().size(), 1u) << "a cell contains at most 32,767 characters";
  EXPECT_TRUE(Messages()[0].starts_with("Brindle Plotsmith: PSFunctions.SaveChartDefinition\n"));
  EXPECT_EQ(Cells("VEX_ChartDefinitions", 3, 1, 3, 1).size(), Definition{"VEX_Chart2"}.Xml().size());
}

TEST_F(MetadataStoreTest, ThePaletteIsSetOnceAndOnlyWithoutCharts) {
  PlainBook plain;
  plain.sheets = {SalesSheet()};
  Open(plain);
  Load();
  const std::int32_t colors[] = {
      0x996666, 0x99FFFF, 0x669933, 0x8080FF, 0xCCCC33, 0x800080, xlsx::DefaultPaletteColor(23)};
  for (int i = 0; i < 7; ++i) EXPECT_EQ(oWorkbook->Colors(17 + i), colors[i]) << i;
  SaveAndReopen();
  for (int i = 0; i < 7; ++i) EXPECT_EQ(oWorkbook->Colors(17 + i), colors[i]) << i;
  for (int i = 1; i < 17; ++i) EXPECT_EQ(oWorkbook->Colors(i), xlsx::DefaultPaletteColor(i)) << i;

  PlainBook charted = SalesBook({{"Somebody's"}});
  charted.sheets.pop_back();
  Open(charted);
  Load();
  EXPECT_EQ(oWorkbook->Colors(17), xlsx::DefaultPaletteColor(17)) << "the workbook has a chart";

  Open(plain);
  oWorkbook->SetColors(20, 255);
  Load();
  EXPECT_EQ(oWorkbook->Colors(17), xlsx::DefaultPaletteColor(17)) << "the user has changed the palette";
}

TEST_F(MetadataStoreTest, IdentityAndPositionOfANewChart) {
  Open(SalesBook({{"VEX_Chart1"}, {"VEX_Chart3"}}));
  Load();
  colCharts->Item("VEX_Chart1").documentElement().setAttribute("name", "chart2");
  CreateChartDoc();
  EXPECT_EQ(sChartID, "VEX_Chart2");
  EXPECT_EQ(GetAttributeText(oChartDoc.documentElement(), "name"), "Chart2 (1)");
  EXPECT_TRUE(ChartNameInUse("CHART2"));
  sChartID = "VEX_Chart1";
  EXPECT_FALSE(ChartNameInUse("Chart2")) << "a chart doesn't collide with itself";

  CreateEmptyChart("Charts", "VEX_Chart2");
  CreateEmptyChart("Data1", "VEX_Chart4");  // The sheet has no drawing.
  SaveAndReopen();
  EXPECT_TRUE(Messages().empty());
  Load();
  const auto shapes = oWorkbook->Worksheets()->Item("Charts")->Shapes();
  ASSERT_EQ(shapes->Count(), 3);
  const auto shape = shapes->Item(3);
  EXPECT_EQ(shape->AlternativeText(), "VEX_Chart2");
  EXPECT_DOUBLE_EQ(shape->Left(), 40);
  EXPECT_DOUBLE_EQ(shape->Top(), 40);
  EXPECT_NEAR(shape->Width(), 420, 0.01);
  EXPECT_NEAR(shape->Height(), 345, 0.01);
  EXPECT_EQ(FindChartSheet("VEX_Chart4"), "Data1");
  const auto area = FindChartObject("VEX_Chart4", "Data1")->ChartArea();
  EXPECT_EQ(area->Interior()->ColorIndex(), excel::xlColorIndexNone);
  EXPECT_EQ(Cells("Data1", 1, 1, 1, 2), "Region|Product") << "the cells of the sheet weren't changed";
}

}  // namespace
}  // namespace plotsmith

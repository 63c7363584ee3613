#include <set>
#include <vector>

#include "controller/CPlotsmithController.h"
#include "runtime/Strings.h"
#include "tests/support/FamilyBooks.h"
#include "tests/support/HostTest.h"
#include "tests/support/SaveFailures.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

class RefreshScenarioTest : public HostTest {
 protected:
  S Refers(const S& name) { return Book().Names()->Item(name)->RefersTo(); }
  /// Opens the saved workbook after its first sheet was replaced by that of `book`, as by an export.
  void OpenSavedWithDataOf(const PlainBook& book) {
    book.Write(folder_ / "filled.xlsx");
    auto package = xlsx::Package::Open(folder_ / "saved.xlsx");
    package.Replace("/xl/worksheets/sheet1.xml",
                    xlsx::Package::Open(folder_ / "filled.xlsx").Read("/xl/worksheets/sheet1.xml"));
    package.Save(folder_ / "filled.xlsx");
    OpenFile(folder_ / "filled.xlsx");
  }
  S Chart(int number) { return SavedPart("/xl/charts/chart" + std::to_string(number) + ".xml"); }
};

S ForeignChart(const S& formula) {
  return "<c:chartSpace xmlns:c=\"http://schemas.openxmlformats.org/drawingml/2006/chart\">"
         "<c:chart><c:plotArea><c:lineChart><c:ser><c:idx val='0'/><c:val><c:numRef><c:f>" +
         formula + "</c:f></c:numRef></c:val></c:ser></c:lineChart></c:plotArea></c:chart></c:chartSpace>";
}

/// Sets the regions in the sales table.
void SetRegions(PlainBook& book, std::initializer_list<const char*> regions) {
  auto& rows = book.Sheet("Data1").rows;
  rows.resize(1);
  double amount = 1;
  for (const char* region : regions) rows.push_back({S(region), S("Widget"), amount++, 0.5});
}

TEST_F(RefreshScenarioTest, ReferencesFollowABlockThatGrowsAboveThem) {
  PlainBook book = SalesBook({{"VEX_Chart1"}, {"VEX_Chart2"}});
  SetRegions(book, {"A", "B"});
  book.Sheet("Charts").frames.push_back({"somebody's", ForeignChart("VEX_ChartData!$C$5:$C$6"), 0, 60});
  book.Sheet("Charts").frames.push_back({"another's", ForeignChart("Data1!$C$5:$C$6"), 9, 60});
  PlainSheet formulas{"Formulas"};
  formulas.rows = {
      {RawCell{"><f>SUM(VEX_ChartData!$C$5:C6)</f><v>3</v></c>"}, RawCell{"><f>Data1!C5</f></c>"}}};
  book.sheets.push_back(formulas);
  book.names = {{"SecondBlock", "VEX_ChartData!$B$5:$C$6"}, {"Elsewhere", "Data1!$A$5"}};
  Open(book);
  RefreshAndReopen();
  EXPECT_NE(Chart(2).find("<c:f>VEX_ChartData!$C$5:$C$6</c:f>"), S::npos);

  // The table gets three more rows, and both charts are rebuilt, one after the other.
  PlainBook grown = book;
  SetRegions(grown, {"A", "B", "C", "D", "E"});
  OpenSavedWithDataOf(grown);
  RefreshAndReopen();
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(
      Cells("VEX_ChartData", 1, 1, 13, 3),
      "VEX_Chart1||Widget\nVEX_Chart1|A|1\nVEX_Chart1|B|2\nVEX_Chart1|C|3\nVEX_Chart1|D|4\nVEX_Chart1|E|5\nVE"
      "X_Chart2||Widget\nVEX_Chart2|A|1\nVEX_Chart2|B|2\nVEX_Chart2|C|3\nVEX_Chart2|D|4\nVEX_Chart2|E|5\n||");
  EXPECT_NE(Chart(1).find("<c:f>VEX_ChartData!$C$2:$C$6</c:f>"), S::npos);
  EXPECT_NE(Chart(2).find("<c:f>VEX_ChartData!$C$8:$C$12</c:f><c:numCache><c:formatCode>General"
                          "</c:formatCode><c:ptCount val=\"5\"/><c:pt idx=\"0\"><c:v>1</c:v></c:pt>"),
            S::npos)
      << Chart(2);
  // References from elsewhere are adjusted too: three rows were inserted above, and three into the block.
  EXPECT_NE(Chart(3).find("VEX_ChartData!$C$8:$C$12"), S::npos) << Chart(3);
  EXPECT_NE(Chart(4).find("Data1!$C$5:$C$6"), S::npos);
  EXPECT_NE(SavedPart("/xl/worksheets/sheet4.xml")
                .find("<f>SUM(VEX_ChartData!$C$8:C12)</f><v>3</v></c><c r=\"B1\"><f>Data1!C5</f>"),
            S::npos);
  EXPECT_EQ(Refers("SecondBlock"), "=VEX_ChartData!$B$8:$C$12");
  EXPECT_EQ(Refers("Elsewhere"), "=Data1!$A$5");
}

TEST_F(RefreshScenarioTest, AChartThatIsNotRebuiltKeepsItsDataWhenRowsMove) {
  Definition other{"VEX_Chart2", "bar", "table-id=\"Data2\" title=\"Other\""};
  PlainBook book = SalesBook({{"VEX_Chart1"}, other});
  book.sheets.push_back(SalesSheet("Data2"));
  SetRegions(book, {"A", "B"});
  Open(book);
  RefreshAndReopen();
  const S before = Chart(2);
  ASSERT_NE(before.find("VEX_ChartData!$C$5:$C$6"), S::npos) << before;
  SetRegions(book, {"A", "B", "C", "D", "E"});
  OpenSavedWithDataOf(book);
  S table = "Data1";
  CPlotsmithController().RefreshChartsForTable(host_, table);
  SaveAndReopen();
  S expected = before;
  for (const auto& [from, to] : {std::pair{"$5:", "$8:"}, std::pair{"$6<", "$9<"}, std::pair{"$4<", "$7<"}}) {
    expected = runtime::Replace(expected, from, to);
  }
  EXPECT_EQ(Chart(2), expected);
}

TEST_F(RefreshScenarioTest, OtherPartsKeepTheirBytes) {
  for (const bool shared : {false, true}) {
    PlainBook book = SalesBook({{"VEX_Chart1"}});
    book.sharedStrings = shared;
    book.Sheet("Data1").beforeData = "<!-- kept --><sheetPr/>\r\n";
    book.Sheet("Data1").afterData = "<conditionalFormatting sqref='A1'/>\n<extLst>\t<ext uri='x'/></extLst>";
    book.Sheet("Charts").frames.push_back({"foreign", ForeignChart("Data1!$C$1") + "<!-- bytes -->", 20, 0});
    book.sheets.push_back(SalesSheet("Other"));
    book.extraParts = {{"xl/media/image1.bin", S("\x89PNG\0\xFF", 6)},
                       {"customXml/item1.xml", "<?x?>\r\n<a  b = 'c'/>"}};
    Open(book);
    Refresh();
    SaveThroughFailures(folder_ / "saved.xlsx", [&](const S& path) { Book().Save(path); });
    const auto before = xlsx::Package::Open(folder_ / "book.xlsx"),
               after = xlsx::Package::Open(folder_ / "saved.xlsx");
    const std::set<S> ours = {"/[Content_Types].xml", "/xl/workbook.xml", "/xl/_rels/workbook.xml.rels",
                              "/xl/charts/chart1.xml", "/xl/worksheets/sheet3.xml"};
    std::set<S> changed;
    for (const S& part : before.Parts()) {
      if (before.Read(part) != after.Read(part)) changed.insert(part);
    }
    EXPECT_EQ(changed, ours);
  }
}

TEST_F(RefreshScenarioTest, WithoutMemoryASaveLeavesTheOldFile) {
  const auto isSaved = [&](int allocation) {
    Open(SalesBook({{"VEX_Chart1"}, {"VEX_Chart2", "pie"}}));
    Refresh();
    Book().Tabs().Activate(*Book().Tabs().Find("Charts"));
    return SaveWithoutMemory(folder_ / "book.xlsx", allocation, [&](const S& path) { Book().Save(path); });
  };
  for (int allocation = 1; !isSaved(allocation); allocation += 1 + allocation / 8) {
  }
}

TEST_F(RefreshScenarioTest, ARefreshTwiceChangesNothingMore) {
  const S axes =
      "<axes><axis type=\"label\" label=\"L\"/><axis type=\"value\" label=\"V\" sticky=\"yes\"/></axes>";
  const auto labels = [](const S& show) {
    return "<data-labels><data-label show=\"" + show + "\"/></data-labels>";
  };
  const auto sales = [&](const S& type, const S& rest) {
    Definition definition{"VEX_Chart1", type, "table-id=\"Data1\" title=\"T\" number-format=\"$#,##0.00\""};
    definition.rest = rest + "<comment>Said of it</comment>";
    return SalesBook({definition});
  };
  Definition bubbles = BubbleDefinition(), buckets = BucketDefinition();
  bubbles.rest += axes + Settings({"quadrants", "autoscale-x"}, "static-attributes");
  buckets.rest += axes + "<data-labels manual-labels=\"yes\"/>";
  const std::pair<const char*, PlainBook> cases[] = {
      {"area", sales("area", axes + labels("values") + Settings({"3D"}))},
      {"bar", sales("bar", axes)},
      {"column", sales("column", axes + labels("values") + Settings({"stacked", "100%"}))},
      {"pie", sales("pie", labels("percentages") + Settings({"exploded"}))},
      {"bubble", BubbleBook({{"a", "X", 1, 2, 3}, {"b", "Y", 4, 5, 6}, {"c", "X", 7, 8, 9}}, bubbles)},
      {"strategic bucket", BucketBook(buckets)}};
  for (const auto& [what, book] : cases) {
    SCOPED_TRACE(what);
    Open(book);
    RefreshAndReopen();
    Refresh();  // This is the first refresh of a drawn chart, and it stores the look.
    SaveAndReopen();
    const auto first = xlsx::Package::Open(folder_ / "saved.xlsx");
    std::vector<std::pair<S, S>> parts;
    for (const S& part : first.Parts()) parts.emplace_back(part, first.Read(part));
    EXPECT_NE(Chart(1).find("<c:ser>"), S::npos);
    RefreshAndReopen();
    const auto second = xlsx::Package::Open(folder_ / "saved.xlsx");
    EXPECT_EQ(second.Parts().size(), parts.size());
    for (const auto& [part, bytes] : parts) EXPECT_TRUE(second.Read(part) == bytes) << part;
    EXPECT_TRUE(Messages().empty()) << Messages()[0];
  }
}

}  // namespace
}  // namespace plotsmith

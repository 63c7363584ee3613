#include <algorithm>
#include <fstream>
#include <functional>
#include <limits>
#include <new>

#include "runtime/Strings.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/Files.h"
#include "tests/support/HostTest.h"
#include "tests/support/SaveFailures.h"
#include "xlsx/SheetDrawing.h"
#include "xlsx/SheetShape.h"
#include "xlsx/Worksheet.h"
#include "xlsx/package/Namespaces.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::xlsx {
namespace {

using namespace test;
using S = std::string;
using Edit = std::function<S(const S&)>;

constexpr const char* kSheet1 = "/xl/worksheets/sheet1.xml";
constexpr const char* kWorkbookPart = "/xl/workbook.xml";

/// Tests workbooks with the peculiarities of other programs.
class ForeignBookTest : public test::HostTest {
 protected:
  /// Opens the workbook with some changed parts.
  void OpenEdited(const PlainBook& book, const std::vector<std::pair<S, Edit>>& edits) {
    book.Write(folder_ / "plain.xlsx");
    xlsx::Package package = Package::Open(folder_ / "plain.xlsx");
    for (const auto& [part, edit] : edits) package.Replace(part, edit(package.Read(part)));
    package.Save(folder_ / "edited.xlsx");
    OpenFile(folder_ / "edited.xlsx");
  }
  std::shared_ptr<Worksheet> Sheet(const S& name) { return Book().FindWorksheet(name); }
  void AddBox(const S& sheet) { Sheet(sheet)->Shapes()->AddTextbox(1, 10, 10, 50, 20); }
  void AddChart(const S& sheet) { Sheet(sheet)->ChartObjects()->Add(10, 10, 50, 20); }
  bool Holds(const S& part, const S& text) const { return SavedPart(part).find(text) != S::npos; }
};

S Wide(const S& text) {
  S bytes = "\xFF\xFE";
  for (const char16_t unit : runtime::ToUtf16(text)) {
    bytes += {static_cast<char>(unit & 0xFF), static_cast<char>(unit >> 8)};
  }
  return bytes;
}

Edit Replacing(const S& from, const S& to) {
  return [from, to](const S& text) {
    EXPECT_NE(text.find(from), S::npos) << from;
    return runtime::Replace(text, from, to);
  };
}

TEST_F(ForeignBookTest, PartsInOtherEncodingsAreReadAndFollowed) {
  PlainBook book = SalesBook({{"VEX_Chart1"}});
  book.Sheet("Data1").rows[1][0] = S("Östen");
  book.sheets.push_back({"Formulas", {{test::RawCell{"><f>VEX_ChartData!C1</f></c>"}}}});
  const auto utf16 = [](const S& text) {
    return Wide(
        runtime::Replace(text, "<?xml version=\"1.0\"?>", "<?xml version=\"1.0\" encoding=\"UTF-16\"?>"));
  };
  const auto latin1 = [](const S& text) {
    return runtime::Replace(
        runtime::Replace(text, "<?xml version=\"1.0\"?>", "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>"),
        "Ö", "\xD6");
  };
  for (const Edit& encoded : {Edit(utf16), Edit(latin1)}) {
    OpenEdited(book, {{kSheet1, encoded}, {"/xl/worksheets/sheet4.xml", encoded}, {kWorkbookPart, encoded}});
    Refresh();
    AddBox("Data1");
    Sheet("VEX_ChartData")->InsertRow(1);
    SaveAndReopen();
    EXPECT_TRUE(Messages().empty());
    EXPECT_EQ(Cells("VEX_ChartData", 3, 2, 3, 2), "Östen");
    for (const S& part : {S(kSheet1), S("/xl/worksheets/sheet4.xml"), S(kWorkbookPart)}) {
      EXPECT_TRUE(SavedPart(part).starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>")) << part;
    }
    EXPECT_TRUE(Holds("/xl/worksheets/sheet4.xml", "<f>VEX_ChartData!C2</f>"));
  }
}

TEST_F(ForeignBookTest, PartsAreFoundWithEverySpellingOfTheirNames) {
  const PlainBook book = SalesBook({{"VEX_Chart1"}});
  for (const auto& [from, entry, written] : {std::tuple<S, S, S>{"charts/", "my%20charts/", "my%20charts/"},
                                             {"charts/", "my charts/", "my%20charts/"},
                                             {"charts/", "my charts/", "my charts/"},
                                             {"charts/chart1", "charts/Chart1", "CHARTS/chart1"},
                                             {"worksheets/", "bl%C3%A4tter/", "bl%c3%a4tter/"},
                                             {"worksheets/", "blätter/", "bl%C3%A4tter/"}}) {
    OpenRenamed(book, from, entry, written);
    const auto before = Package::Open(folder_ / "renamed.xlsx").Parts().size();
    Refresh();
    AddChart("Charts");
    AddBox("Data1");
    SaveAndReopen();
    EXPECT_TRUE(Messages().empty()) << entry;
    // A chart, a drawing with its relationship, the data sheet and the theme are added.
    EXPECT_EQ(Package::Open(folder_ / "saved.xlsx").Parts().size(), before + 5) << entry;
    ASSERT_EQ(Sheet("Charts")->ChartObjects()->Count(), 2) << entry;
    Sheet("VEX_ChartData")->InsertRow(1);
    SaveAndReopen();
    const auto part = Sheet("Charts")->FindDrawing()->Shapes()[0]->ChartPartName();
    EXPECT_TRUE(Holds(part, "VEX_ChartData!$C$3:$C$4")) << entry << SavedPart(part);
  }
}

TEST_F(ForeignBookTest, NewPartsAreInTheirFoldersInEveryFile) {
  OpenRenamed(SalesBook({}), "worksheets/sheet1.xml", "Sales.xml", "Sales.xml");
  AddChart("Data1");
  SaveAndReopen();
  const auto package = Package::Open(folder_ / "saved.xlsx");
  EXPECT_EQ(package.ContentType("/xl/drawings/drawing1.xml"), content_type::kDrawing);
  EXPECT_EQ(package.ContentType("/xl/charts/chart1.xml"), content_type::kChart);
  EXPECT_EQ(Sheet("Data1")->ChartObjects()->Count(), 1);
}

TEST_F(ForeignBookTest, TheContentTypeOfAFormerPartIsReplaced) {
  OpenEdited(SalesBook({}),
             {{"/[Content_Types].xml",
               Replacing("</Types>",
                         "<Override PartName=\"/xl/drawings/drawing1.xml\" ContentType=\"x/y\"/></Types>")}});
  AddBox("Data1");
  SaveAndReopen();
  const S types = SavedPart("/[Content_Types].xml");
  const auto first = types.find("/xl/drawings/drawing1.xml");
  EXPECT_EQ(types.find("/xl/drawings/drawing1.xml", first + 1), S::npos);
  EXPECT_EQ(Package::Open(folder_ / "saved.xlsx").ContentType("/xl/drawings/drawing1.xml"),
            content_type::kDrawing);
}

TEST_F(ForeignBookTest, ReferencesFollowEachRowShiftOnce) {
  test::PlainBook book = SalesBook({});
  test::PlainSheet formulas{"Formulas"};
  formulas.rows = {{test::RawCell{"><f>Data1!C3</f><v>5</v></c>"}}};
  book.sheets.push_back(formulas);
  book.names = {{"Place", "Data1!$C$3"}};
  Open(book);
  const auto part = "/xl/worksheets/sheet" + std::to_string(book.sheets.size()) + ".xml";
  for (const char* row : {"4", "5"}) {
    Sheet("Data1")->Rows(2)->Insert();
    EXPECT_EQ(Book().Names()->Item("Place")->RefersTo(), S("=Data1!$C$") + row);
    for (int saved = 0; saved < 2; ++saved) {
      test::SaveThroughFailures(folder_ / "saved.xlsx", [&](const S& path) { Book().Save(path); });
      EXPECT_NE(SavedPart(part).find(S("<f>Data1!C") + row + "</f>"), S::npos) << SavedPart(part);
    }
  }
}

TEST_F(ForeignBookTest, DatesOfTheSystemOf1904PassBothWays) {
  test::PlainBook book;
  book.sheets = {{"Sheet1", {{1.0}}}};
  book.styles =
      "<styleSheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"><cellXfs><xf "
      "numFmtId=\"14\"/></cellXfs></styleSheet>";
  book.workbookExtra = "<workbookPr date1904=\"1\"/>";
  Open(book);
  const auto value = Sheet("Sheet1")->Cells(1, 1)->Value();
  EXPECT_EQ(value, runtime::Variant(runtime::Variant::Date{1463}));
  Sheet("Sheet1")->Cells(2, 1)->SetValue(value);
  EXPECT_EQ(Cells("Sheet1", 1, 1, 2, 1), "1/2/1904\n1/2/1904");
  EXPECT_EQ(Sheet("Sheet1")->Cells(2, 1)->Value(), value);
}

TEST_F(ForeignBookTest, ExtremeNumbersAreLimited) {
  PlainBook book = SalesBook({{"VEX_Chart1"}, {"VEX_Chart2"}});
  book.workbookExtra =
      "<bookViews><workbookView activeTab=\"9223372036854775807\" "
      "firstSheet=\"-9223372036854775808\"/><workbookView activeTab=\"2\"/></bookViews>";
  book.Sheet("Charts").beforeData =
      "<sheetFormatPr baseColWidth=\"1e300\" defaultRowHeight=\"1e300\"/><cols><col min=\"1\" max=\"16384\" "
      "width=\"1e300\"/><col min=\"3\" max=\"-1e300\"/></cols>";
  book.styles =
      "<styleSheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"><numFmts count=\"2\">"
      "<numFmt numFmtId=\"2147483647\" formatCode=\"0.0\"/><numFmt numFmtId=\"9223372036854775807\" "
      "formatCode=\"0.00000\"/></numFmts><fonts><font><sz val=\"1e300\"/></font></fonts></styleSheet>";
  book.Sheet("Charts").frames[1].chartXml = runtime::Replace(
      test::EmptyFrameChart(), "<c:layout/>",
      "<c:layout/><c:barChart><c:barDir val=\"col\"/><c:grouping val=\"clustered\"/><c:ser><c:idx "
      "val=\"9223372036854775807\"/><c:order val=\"9223372036854775807\"/></c:ser></c:barChart>");
  OpenEdited(
      book, {{kWorkbookPart, Replacing("sheetId=\"3\"", "sheetId=\"65534\"")},
             {"/xl/drawings/drawing2.xml", Replacing("cNvPr id=\"3\"", "cNvPr id=\"9223372036854775807\"")}});
  AddBox("Charts");
  Book().Tabs().Add(0)->SetCellValueAt(1, 1, 1.0);
  Sheet("Sheet1")->SetNumberFormat({1, 1, 1, 1}, "0.000");
  Refresh();
  SaveAndReopen();
  const S workbook = SavedPart(kWorkbookPart);
  EXPECT_NE(workbook.find("<sheet name=\"Sheet1\" sheetId=\"3\""), S::npos) << workbook;
  EXPECT_NE(workbook.find("<sheet name=\"VEX_ChartData\" sheetId=\"4\""), S::npos) << workbook;
  EXPECT_NE(workbook.find("<workbookView activeTab=\"3\"/>"), S::npos) << "all windows: " << workbook;
  EXPECT_TRUE(Holds("/xl/drawings/drawing2.xml", "<xdr:cNvPr id=\"3\" name=\"TextBox 3\"/>"))
      << SavedPart("/xl/drawings/drawing2.xml");
  EXPECT_TRUE(Holds("/xl/styles.xml", "numFmtId=\"164\" formatCode=\"0.000\""))
      << SavedPart("/xl/styles.xml");
  EXPECT_EQ(Cells("Sheet1", 1, 1, 1, 1), "1.000");
}

TEST_F(ForeignBookTest, TheFirstStyleStaysThatOfAllOtherCells) {
  for (const bool strict : {false, true}) {
    PlainBook book = SalesBook({});
    const S main = strict ? "http://purl.oclc.org/ooxml/spreadsheetml/main"
                          : "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
    if (!strict) book.styles = "<styleSheet xmlns=\"" + main + "\"/>";
    OpenEdited(book, {{kWorkbookPart,
                       Replacing("http://schemas.openxmlformats.org/spreadsheetml/2006/main", main)}});
    Book().Tabs().Add(0)->SetCellValueAt(1, 1, 0.5);
    Sheet("Sheet1")->SetNumberFormat({1, 1, 1, 1}, "0%");
    SaveAndReopen();
    EXPECT_EQ(Cells("Sheet1", 1, 1, 1, 1), "50%");
    EXPECT_EQ(Cells("Data1", 2, 3, 2, 4), "10|7.5");
    pugi::xml_document styles;
    xml::Parse(styles, SavedPart("/xl/styles.xml"));
    EXPECT_EQ(xml::NamespaceOf(xml::Root(styles)), main);
  }
}

TEST_F(ForeignBookTest, TheSheetDecidesBetweenSeveralDrawings) {
  const PlainBook book = SalesBook({{"VEX_Chart1"}});
  book.Write(folder_ / "plain.xlsx");
  const xlsx::Package plain = Package::Open(folder_ / "plain.xlsx");
  const S rels = "/xl/worksheets/_rels/sheet2.xml.rels";
  const S link = plain.Read(rels).substr(plain.Read(rels).find("<Relationship "));
  const S stray = Replacing("drawing2.xml",
                            "drawing9.xml")(Replacing("rId1", "rId9")(link.substr(0, link.find('>') + 1)));
  OpenEdited(book, {{rels, Replacing("<Relationship ", stray + "<Relationship ")}});
  Refresh();
  EXPECT_TRUE(Messages().empty()) << Messages()[0];
  SaveAndReopen();
  EXPECT_NE(Cells("VEX_ChartDefinitions", 1, 1, 9, 1).find("VEX_Chart1"), S::npos);
  EXPECT_TRUE(Holds("/xl/charts/chart1.xml", "<c:ser>"));
}

TEST_F(ForeignBookTest, NewShapesGetNamesOfTheirOwn) {
  PlainBook book = SalesBook({{"VEX_Chart1"}, {"VEX_Chart2"}});
  OpenEdited(book, {{"/xl/drawings/drawing2.xml", Replacing("name=\"Chart 2\"", "name=\"chart 3\"")}});
  AddChart("Charts");
  AddChart("Charts");
  SaveAndReopen();
  std::vector<S> names;
  for (const auto& shape : Sheet("Charts")->FindDrawing()->Shapes()) names.push_back(shape->Name());
  EXPECT_EQ(names, (std::vector<S>{"Chart 1", "chart 3", "Chart 4", "Chart 5"}));
}

TEST_F(ForeignBookTest, OneTabIsSelectedWhenAnotherSheetBecomesActive) {
  PlainBook book = SalesBook({{"VEX_Chart1"}});
  const S selected = "<sheetViews><sheetView tabSelected=\"1\" workbookViewId=\"0\"/></sheetViews>";
  book.Sheet("Data1").beforeData = book.Sheet("Charts").beforeData = selected;
  const auto tabs = [&] {
    S text;
    for (const S& part : Package::Open(folder_ / "saved.xlsx").Parts()) {
      if (part.starts_with("/xl/worksheets/sheet") && Holds(part, "tabSelected=\"1\"")) text += part[20];
    }
    std::sort(text.begin(), text.end());
    return text;
  };
  Open(book);
  Refresh();  // The refresh adds a hidden sheet and activates the old one again.
  SaveAndReopen();
  EXPECT_EQ(tabs(), "12") << "a group made by the user is kept";
  Book().Tabs().Activate(*Book().Tabs().Find("Charts"));
  SaveAndReopen();
  EXPECT_EQ(tabs(), "2");
  EXPECT_EQ(Book().ActiveSheet()->Name(), "Charts");
  Book().Tabs().Add(1);
  SaveAndReopen();
  EXPECT_EQ(tabs(), "5");
  EXPECT_EQ(Book().ActiveSheet()->Name(), "Sheet1");
}

TEST_F(ForeignBookTest, ANewSheetIsNotShownIfItWouldBeGroupedWithAnother) {
  PlainBook book = SalesBook({});
  book.Sheet("Data1").beforeData =
      "<sheetViews><sheetView tabSelected=\"1\" workbookViewId=\"0\"/></sheetViews>";
  // The view of a long sheet with a wrong checksum can be read, but the whole part can't. The same is true
  // for a sheet that is too large to be held in memory.
  book.Sheet("Data1").afterData = book.Sheet("Charts").afterData = "<!--" + S(1 << 20, 'x') + "-->";
  for (const auto& [damaged, expected] : {std::pair<S, S>{"", "Sheet2"},
                                          {"xl/worksheets/sheet1.xml", "Data1"},
                                          {"xl/worksheets/sheet2.xml", "Sheet2"}}) {
    book.Write(folder_ / "plain.xlsx");
    if (!damaged.empty()) {
      S bytes = BytesOf(folder_ / "plain.xlsx");
      bytes[bytes.find(damaged) - 16] = bytes[bytes.rfind(damaged) - 30] = 77;
      std::ofstream(folder_ / "plain.xlsx", std::ios::binary) << bytes;
    }
    OpenFile(folder_ / "plain.xlsx");
    for (const std::size_t position : {std::size_t{0}, std::size_t{1}}) {
      Book().Tabs().Add(position);
      SaveAndReopen();
    }
    S tabs;
    for (const char* name : {"Data1", "Charts", "Sheet1", "Sheet2"}) {
      if (Sheet(name)->View().selected) tabs += name;
    }
    EXPECT_EQ(tabs, expected) << damaged;
    EXPECT_EQ(Book().ActiveSheet()->Name(), expected) << damaged;
  }
}

TEST_F(ForeignBookTest, ADamagedDrawingAffectsOnlyItsSheet) {
  PlainBook book = SalesBook({{"VEX_Chart1"}});
  book.sheets.insert(book.sheets.begin(), test::SalesSheet("Other"));
  book.sheets.front().extraAnchors = "<xdr:absoluteAnchor/>";
  const S drawing = "/xl/drawings/drawing1.xml";
  OpenEdited(book, {{drawing, [](const S&) { return S("<xdr:wsDr"); }}});
  Refresh();
  EXPECT_EQ(Sheet("Other")->Shapes()->Count(), 0);
  const auto addBox = [&] { AddBox("Other"); };
  EXPECT_EQ(ErrorOf(addBox), runtime::error::kApplication);
  EXPECT_EQ(
      ErrorTextOf<runtime::RuntimeError>(addBox),
      "The drawing can't be read: its part /xl/drawings/drawing1.xml can't be read: its XML is damaged.");
  EXPECT_FALSE(Book().Damage());
  SaveAndReopen();
  EXPECT_TRUE(Messages().empty());
  EXPECT_EQ(SavedPart(drawing), "<xdr:wsDr");
  EXPECT_TRUE(Holds("/xl/charts/chart1.xml", "<c:ser>"));
  // If the file may contain unread charts, a missing chart doesn't count as deleted.
  OpenEdited(book, {{drawing, [](const S&) { return S("<xdr:wsDr><xdr:graphicFrame"); }}});
  Refresh();
  EXPECT_TRUE(Book().Damage());
}

TEST_F(ForeignBookTest, ASumBeyondAllNumbersIsAnOverflow) {
  PlainBook book = SalesBook({{"VEX_Chart1"}});
  for (std::size_t row = 1; row < 5; ++row) {
    book.Sheet("Data1").rows[row][2] = test::RawCell{"><v>1.7E308</v></c>"};
  }
  Open(book);
  Refresh();
  EXPECT_EQ(Messages(), (std::vector<S>{"Brindle Plotsmith: PSChartBuilder.GetSourceData\nOverflow"}));
  const auto sheet = Book().Tabs().Add(0);
  EXPECT_EQ(ErrorOf([&] { sheet->SetCellValueAt(1, 1, std::numeric_limits<double>::infinity()); }),
            runtime::error::kOverflow);
}

TEST_F(ForeignBookTest, OversizedWorkbooksAreRefused) {
  PlainBook book = SalesBook({});
  test::PlainSheet wide;
  wide.name = "Wide";
  for (int row = 1; row <= 2000; ++row) {
    wide.rows.push_back({test::RawCell{"/><c r=\"XFD" + std::to_string(row) + "\"><v>1</v></c>"}});
  }
  book.sheets.push_back(wide);
  Open(book);
  EXPECT_EQ(ErrorTextOf<runtime::RuntimeError>([&] { Sheet("Wide")->SetCellValueAt(1, 1, 1.0); }),
            "The sheet is too large to be written.");
  EXPECT_EQ(Cells("Wide", 2000, 16384, 2000, 16384), "1");
  EXPECT_NE(ErrorOf([&] { Book().Guarded([]() -> int { throw std::bad_alloc(); }); }), 0);
  EXPECT_EQ(Book().Damage(), "there is not enough memory for it");
}

}  // namespace
}  // namespace plotsmith::xlsx

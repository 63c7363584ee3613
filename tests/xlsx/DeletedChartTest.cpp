#include <algorithm>
#include <functional>

#include "runtime/Strings.h"
#include "tests/support/ChartTest.h"
#include "tests/support/PackageComplaints.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::xlsx {
namespace {

using namespace test;
using S = std::string;

const S kDrawing2 = "/xl/drawings/drawing2.xml", kDrawing2Links = "/xl/drawings/_rels/drawing2.xml.rels";
const S kTypes = "/[Content_Types].xml";

S Link(const S& id, const S& type, const S& target) {
  return "<Relationship Id=\"" + id +
         "\" Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/" + type +
         "\" Target=\"" + target + "\"/>";
}

S Links(const S& links) {
  return "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">" + links +
         "</Relationships>";
}

S Picture(const S& name, const S& id) {
  return "<xdr:absoluteAnchor><xdr:pos x=\"0\" y=\"0\"/><xdr:ext cx=\"9\" cy=\"9\"/><xdr:pic><xdr:nvPicPr>"
         "<xdr:cNvPr id=\"9\" name=\"" +
         name + "\"/><xdr:cNvPicPr/></xdr:nvPicPr><xdr:blipFill><a:blip r:embed=\"" + id +
         "\"/></xdr:blipFill><xdr:spPr/></xdr:pic><xdr:clientData/></xdr:absoluteAnchor>";
}

const S kPrefix = "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\"";

S DrawingElement(const S& id) { return "<drawing " + kPrefix + " r:id=\"" + id + "\"/>"; }

class DeletedChartTest : public test::HostTest {
 protected:
  /// Opens a workbook with two charts and two pictures on a sheet. The first chart has its own parts, as
  /// Excel writes them, and shares an image with a picture. `links` are the relationships of the sheet's
  /// drawing.
  void OpenCharts(const S& links = kOwnLinks, const S& secondChart = "rId2") {
    test::PlainBook book = test::SalesBook({{"VEX_Chart1"}, {"VEX_Chart2"}});
    book.Sheet("Charts").frames[0].chartXml = runtime::Replace(
        test::EmptyFrameChart(), "</c:chartSpace>",
        "<c:userShapes xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\" "
        "r:id=\"rId1\"/></c:chartSpace>");
    book.Sheet("Charts").extraAnchors = Picture("Logo", "rId8") + Picture("Photo", "rId9");
    book.extraParts = {
        {"xl/charts/_rels/chart1.xml.rels",
         Links(Link("rId1", "chartUserShapes", "../drawings/drawing9.xml") +
               Link("rId2", "chartStyle", "style1.xml") + Link("rId3", "chartColorStyle", "colors1.xml") +
               Link("rId4", "package", "../embeddings/book1.bin"))},
        {"xl/charts/style1.xml", "<style/>"},
        {"xl/charts/colors1.xml", "<colors/>"},
        {"xl/embeddings/book1.bin", "PK"},
        {"xl/drawings/drawing9.xml",
         "<c:userShapes xmlns:c=\"http://schemas.openxmlformats.org/drawingml/2006/chart\"/>"},
        {"xl/drawings/_rels/drawing9.xml.rels",
         Links(Link("rId1", "image", "../media/logo.bin") + Link("rId2", "image", "../media/trend.bin"))},
        {"xl/media/logo.bin", "logo"},
        {"xl/media/trend.bin", "trend"},
        {"xl/media/photo.bin", "photo"}};
    book.Write(folder_ / "book.xlsx");
    test::EditPart(folder_ / "book.xlsx", kDrawing2Links, [&](S& text) { text = Links(links); });
    test::EditPart(folder_ / "book.xlsx", kDrawing2,
                   [&](S& text) { text = runtime::Replace(text, "\"rId2\"", "\"" + secondChart + "\""); });
    test::EditPart(folder_ / "book.xlsx", kTypes, [&](S& text) {
      // Some programs write a content type twice.
      for (const S part : {"charts/style1", "charts/style1", "charts/colors1", "drawings/drawing9"}) {
        text = runtime::Replace(
            text, "</Types>",
            "<Override PartName=\"/xl/" + part + ".xml\" ContentType=\"x/" + part + "\"/></Types>");
      }
    });
    OpenFile(folder_ / "book.xlsx");
  }
  excel::Ref<excel::Shape> Shape(const S& name) {
    return Book().FindWorksheet("Charts")->Shapes()->Item(name);
  }
  /// Returns the names of parts that are in the first file and not in the second.
  std::vector<S> Missing(const S& first, const S& second) const {
    const auto package = Package::Open(folder_ / second);
    std::vector<S> parts = Package::Open(folder_ / first).Parts();
    std::erase_if(parts, [&](const S& part) { return package.Has(part); });
    std::sort(parts.begin(), parts.end());
    return parts;
  }

  static inline const S kCharts =
      Link("rId1", "chart", "../charts/chart1.xml") + Link("rId2", "chart", "../charts/chart2.xml");
  static inline const S kImages =
      Link("rId8", "image", "../media/logo.bin") + Link("rId9", "image", "../media/photo.bin");
  static inline const S kOwnLinks = kCharts + kImages;
};

TEST_F(DeletedChartTest, PartsOfADeletedChartAreRemoved) {
  const std::vector<S> ofChart1 = {"/xl/charts/_rels/chart1.xml.rels",
                                   "/xl/charts/chart1.xml",
                                   "/xl/charts/colors1.xml",
                                   "/xl/charts/style1.xml",
                                   "/xl/drawings/_rels/drawing9.xml.rels",
                                   "/xl/drawings/drawing9.xml",
                                   "/xl/embeddings/book1.bin",
                                   "/xl/media/trend.bin"};
  const struct {
    const char* about;
    S links, secondChart;
    const char* deleted;
    std::vector<S> gone;
    const char* goneLink;  ///< The deleted relationship of the drawing; empty if all are kept.
  } cases[] = {{"a chart with its own parts", kOwnLinks, "rId2", "Chart 1", ofChart1, "rId1"},
               {"a chart without parts", kOwnLinks, "rId2", "Chart 2", {"/xl/charts/chart2.xml"}, "rId2"},
               {"an image that a chart uses too", kOwnLinks, "rId2", "Logo", {}, "rId8"},
               {"its own image", kOwnLinks, "rId2", "Photo", {"/xl/media/photo.bin"}, "rId9"},
               {"two frames with the same relationship", kOwnLinks, "rId1", "Chart 1", {}, ""},
               {"two relationships to one chart",
                kOwnLinks + Link("rId3", "chart", "../charts/chart1.xml"),
                "rId3",
                "Chart 1",
                {},
                "rId1"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.about);
    OpenCharts(c.links, c.secondChart);
    const S complaints = PackageComplaints(folder_ / "book.xlsx");
    EXPECT_EQ(complaints, "");
    const auto shapes = Book().FindWorksheet("Charts")->Shapes()->Count();
    if (S(c.deleted).starts_with("Chart")) {  // Changes to a deleted chart aren't written.
      Book().FindWorksheet("Charts")->ChartObjects()->Item(c.deleted)->Chart()->SetHasTitle(!c.gone.empty());
    }
    Shape(c.deleted)->Delete();
    SaveAndReopen();
    EXPECT_EQ(Missing("book.xlsx", "saved.xlsx"), c.gone);
    EXPECT_EQ(PackageComplaints(folder_ / "saved.xlsx"), complaints);
    EXPECT_EQ(Book().FindWorksheet("Charts")->Shapes()->Count(), shapes - 1);
    const auto before = Package::Open(folder_ / "book.xlsx"), after = Package::Open(folder_ / "saved.xlsx");
    std::vector<S> ids;
    for (const Relationship& link : before.Relationships(kDrawing2)) {
      if (link.id != c.goneLink) ids.push_back(link.id);
    }
    for (const Relationship& link : after.Relationships(kDrawing2)) std::erase(ids, link.id);
    EXPECT_EQ(ids, std::vector<S>{});
    EXPECT_FALSE(after.FindRelationship(kDrawing2, c.goneLink));
    for (const S& part : after.Parts()) {
      const bool ofDrawing = part == kDrawing2 || part == kDrawing2Links || part == kTypes;
      const bool changed = part.starts_with("/xl/charts/chart") || part.starts_with("/xl/theme") ||
                           part.starts_with("/xl/_rels");
      if (ofDrawing || (changed && c.gone.empty())) continue;
      EXPECT_EQ(after.Read(part), before.Read(part)) << part;
    }
  }
}

TEST_F(DeletedChartTest, TheLastUserOfARelationshipRemovesIt) {
  struct Step {
    S deleted;   ///< The name of a shape.
    S idsAfter;  ///< The ids of the drawing's relationships after that, each with a blank after it.
  };
  const std::vector<Step> cases[] = {
      {{"Chart 1", "rId1 rId8 rId9 "}, {"Photo", "rId1 rId8 "}, {"Chart 2", "rId8 "}, {"Logo", ""}},
      {{"Logo", "rId1 rId9 "}, {"Chart 2", "rId1 rId9 "}, {"Chart 1", "rId9 "}, {"Photo", ""}}};
  for (const auto& steps : cases) {
    OpenCharts(Link("rId1", "chart", "../charts/chart1.xml") + kImages, "rId1");
    const S complaints = PackageComplaints(folder_ / "book.xlsx");
    for (const Step& step : steps) {
      Shape(step.deleted)->Delete();
      S ids;
      for (const Relationship& link : Book().Package().Relationships(kDrawing2)) ids += link.id + " ";
      EXPECT_EQ(ids, step.idsAfter) << step.deleted;
    }
    SaveAndReopen();
    EXPECT_EQ(PackageComplaints(folder_ / "saved.xlsx"), complaints);
  }
}

TEST_F(DeletedChartTest, ObjectsOfADeletedChartRaiseErrors) {
  OpenCharts();
  const auto shape = Shape("Chart 1");
  const auto object = Book().FindWorksheet("Charts")->ChartObjects()->Item("Chart 1");
  const auto chart = object->Chart();
  chart->SetHasTitle(true);
  chart->SetHasLegend(true);
  const auto list = chart->SeriesCollection();
  const auto series = list->NewSeries();
  series->SetValues("=Data1!R2C3:R5C3");
  const auto title = chart->ChartTitle();
  const auto legend = chart->Legend();
  const auto axis = chart->Axes(excel::xlValue, excel::xlPrimary);
  const auto area = chart->ChartArea();
  const auto plot = chart->PlotArea();
  const auto shapes = chart->Shapes();
  const auto box = shapes->AddTextbox(1, 0, 0, 10, 10);
  const auto text = box->TextFrame()->Characters();
  const auto fill = area->Interior();
  shape->Delete();
  const std::function<void()> calls[] = {
      [&] { shape->Name(); },
      [&] { shape->Type(); },
      [&] { shape->Left(); },
      [&] { shape->AlternativeText(); },
      [&] { shape->SetAlternativeText("x"); },
      [&] { shape->SetWidth(5); },
      [&] { shape->Delete(); },
      [&] { object->Name(); },
      [&] { object->Chart(); },
      [&] { chart->ChartType(); },
      [&] { chart->SetChartType(excel::xlPie); },
      [&] { chart->HasTitle(); },
      [&] { chart->SetHasTitle(false); },
      [&] { chart->SetHasLegend(false); },
      [&] { chart->Axes(excel::xlValue, excel::xlPrimary); },
      [&] { list->Count(); },
      [&] { list->NewSeries(); },
      [&] { series->Name(); },
      [&] { series->SetName("x"); },
      [&] { series->Delete(); },
      [&] { title->SetText("x"); },
      [&] { legend->SetPosition(excel::xlLegendPositionRight); },
      [&] { axis->SetMinimumScale(1); },
      [&] { area->Width(); },
      [&] { fill->SetColor(1); },
      [&] { plot->Width(); },
      [&] { plot->SetWidth(20); },
      [&] { shapes->Count(); },
      [&] { shapes->AddTextbox(1, 0, 0, 10, 10); },
      [&] { box->SetName("x"); },
      [&] { box->Left(); },
      [&] { text->SetText("x"); },
  };
  for (std::size_t i = 0; i < std::size(calls); ++i) {
    SCOPED_TRACE(i);
    ExpectError1004(calls[i]);
  }
  SaveAndReopen();
  EXPECT_EQ(PackageComplaints(folder_ / "saved.xlsx"), "");
  EXPECT_FALSE(Book().Package().Has("/xl/charts/chart1.xml"));
}

TEST_F(DeletedChartTest, ANewChartCanReplaceADeletedOne) {
  OpenCharts();
  const auto old = Book().FindWorksheet("Charts")->ChartObjects()->Item("Chart 1")->Chart();
  Shape("Chart 1")->Delete();
  const auto fresh = Book().FindWorksheet("Charts")->ChartObjects()->Add(0, 0, 100, 100);
  ExpectError1004([&] { old->SetHasTitle(true); });
  fresh->Chart()->SetHasLegend(true);
  EXPECT_EQ(fresh->Name(), "Chart 4");
  SaveAndReopen();
  EXPECT_EQ(PackageComplaints(folder_ / "saved.xlsx"), "");
  EXPECT_TRUE(test::Has(SavedPart("/xl/charts/chart1.xml"), "<c:legend>"));
  EXPECT_TRUE(Package::Open(folder_ / "saved.xlsx").Relationships("/xl/charts/chart1.xml").empty());
  EXPECT_EQ(Book().FindWorksheet("Charts")->ChartObjects()->Count(), 2);
}

TEST_F(DeletedChartTest, IsDeletedWithItsSheet) {
  test::SalesBook({}).Write(folder_ / "book.xlsx");
  OpenFile(folder_ / "book.xlsx");
  const auto sheet = Book().Tabs().Add(0);
  const auto chart = sheet->ChartObjects()->Add(0, 0, 100, 100)->Chart();
  chart->SetHasLegend(true);
  sheet->Delete();
  ExpectError1004([&] { chart->SetHasLegend(false); });
  SaveAndReopen();
  EXPECT_EQ(PackageComplaints(folder_ / "saved.xlsx"), "");
  EXPECT_EQ(Missing("saved.xlsx", "book.xlsx"), std::vector<S>{});
}

TEST_F(DeletedChartTest, ANewChartGetsItsDrawingOnSheetsOfOtherPrograms) {
  struct Case {
    const char* about;
    S behind;  ///< The elements after the cells. "@" marks the position of the drawing.
    S links;
  };
  const Case cases[] = {
      {"openpyxl",
       "<pageMargins left=\"0.75\"/>@<legacyDrawing " + kPrefix +
           " r:id=\"anysvml\"/><tableParts count=\"1\"><tablePart " + kPrefix +
           " r:id=\"rId1\"/></tableParts>",
       Link("anysvml", "vmlDrawing", "/xl/drawings/legacy.bin") + Link("rId1", "table", "/xl/tables/t.bin")},
      {"XlsxWriter",
       "<pageMargins left=\"0.7\"/><pageSetup orientation=\"portrait\" r:id=\"rId1\"/>"
       "<headerFooter/>@<legacyDrawing r:id=\"rId2\"/><extLst><ext/></extLst>",
       Link("rId1", "printerSettings", "../tables/t.bin") +
           Link("rId2", "vmlDrawing", "../drawings/legacy.bin")},
      {"LibreOffice",
       "<printOptions/><pageMargins left=\"0.78\"/><pageSetup paperSize=\"9\"/><headerFooter>"
       "<oddHeader>&amp;A</oddHeader></headerFooter>@<tableParts count=\"1\"><tablePart "
       "r:id=\"rId7\"/></tableParts>",
       Link("rId7", "table", "../tables/t.bin") + Link("rId1", "vmlDrawing", "../drawings/legacy.bin")}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.about);
    test::PlainBook book = test::SalesBook({});
    book.sheets[0].afterData = runtime::Replace(c.behind, "@", "");
    book.extraParts = {{"xl/worksheets/_rels/sheet1.xml.rels", Links(c.links)},
                       {"xl/tables/t.bin", "table"},
                       {"xl/drawings/legacy.bin", "vml"}};
    Open(book);
    const S before = Book().Package().Read("/xl/worksheets/sheet1.xml");
    Book().FindWorksheet("Data1")->ChartObjects()->Add(10, 10, 100, 100);
    SaveAndReopen();
    EXPECT_EQ(PackageComplaints(folder_ / "saved.xlsx"), "");
    const auto& package = Book().Package();
    EXPECT_EQ(package.Relationships("/xl/worksheets/sheet1.xml").size(), 3u);
    const auto link = package.FindRelationshipOfType("/xl/worksheets/sheet1.xml", "drawing");
    ASSERT_TRUE(link);
    const auto at = c.behind.find('@');
    const auto place = before.find("</sheetData>") + S("</sheetData>").size() + at;
    EXPECT_EQ(SavedPart("/xl/worksheets/sheet1.xml"),
              before.substr(0, place) + DrawingElement(link->id) + before.substr(place));
    EXPECT_EQ(Book().FindWorksheet("Data1")->ChartObjects()->Count(), 1);
  }
}

TEST_F(DeletedChartTest, TheSheetOfANewChartHasOneDrawingElement) {
  const S rels = "/xl/worksheets/_rels/sheet1.xml.rels", sheet = "/xl/worksheets/sheet1.xml";
  const S empty =
      "<xdr:wsDr xmlns:xdr=\"http://schemas.openxmlformats.org/drawingml/2006/spreadsheetDrawing\"/>";
  const S link = Link("rId4", "drawing", "../drawings/drawing7.xml");
  const S merged = "<mergeCells count=\"1\"><mergeCell ref=\"A8:B8\"/></mergeCells>";
  const S other = "<x:drawing " + kPrefix +
                  " xmlns:x=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\" "
                  "r:id='rId4'></x:drawing>";
  const struct {
    const char* about;
    S links;          ///< The relationships of the sheet; empty if it has none.
    S before, after;  ///< The elements after the cells.
  } cases[] = {
      {"an element without a relationship", "", DrawingElement("rId9"), DrawingElement("rId1")},
      {"an element at its place", "", merged + "<pageMargins/>" + DrawingElement("rId9") + "<extLst/>",
       merged + "<pageMargins/>" + DrawingElement("rId1") + "<extLst/>"},
      {"a relationship without an element", link, "<pageMargins/><extLst/>",
       "<pageMargins/>" + DrawingElement("rId4") + "<extLst/>"},
      {"an element with another id", link, DrawingElement("rId1"), DrawingElement("rId4")},
      {"two elements", link, DrawingElement("rId1") + other, DrawingElement("rId4")},
      {"an element with the id", link, merged + other, merged + other},
      {"an element after other elements", link, "<pageMargins/>" + other + "<extLst/>",
       "<pageMargins/>" + other + "<extLst/>"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.about);
    test::PlainBook book = test::SalesBook({});
    book.sheets[0].afterData = c.before;
    if (!c.links.empty())
      book.extraParts = {{rels.substr(1), Links(c.links)}, {"xl/drawings/drawing7.xml", empty}};
    Open(book);
    const S before = Book().Package().Read(sheet);
    for (int chart = 0; chart < 2; ++chart) {
      Book().FindWorksheet("Data1")->ChartObjects()->Add(10, 10, 100, 100);
    }
    SaveAndReopen();
    EXPECT_EQ(PackageComplaints(folder_ / "saved.xlsx"), "");
    EXPECT_EQ(Book().Package().Relationships(sheet).size(), 1u);
    EXPECT_EQ(SavedPart(sheet),
              runtime::Replace(before, c.before + "</worksheet>", c.after + "</worksheet>"));
    EXPECT_EQ(Book().FindWorksheet("Data1")->ChartObjects()->Count(), 2);
  }
}

}  // namespace
}  // namespace plotsmith::xlsx

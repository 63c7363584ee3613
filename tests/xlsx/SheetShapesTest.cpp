#include <limits>

#include "tests/support/ChartTest.h"
#include "tests/support/Patterns.h"
#include "xlsx/Worksheet.h"
#include "xlsx/drawing/ShapeEnumerations.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;

class SheetShapesTest : public test::HostTest {};

TEST_F(SheetShapesTest, MoveByTheirAnchors) {
  test::PlainBook book;
  book.sheets = {test::SalesSheet("Sheet1")};
  book.sheets[0].frames = {{"id", ""}};
  book.sheets[0].extraAnchors =
      "<xdr:absoluteAnchor><xdr:pos x=\"12700\" y=\"25400\"/><xdr:ext cx=\"127000\" cy=\"254000\"/><xdr:sp>"
      "<xdr:nvSpPr><xdr:cNvPr id=\"5\" name=\"Abs\"/><xdr:cNvSpPr/></xdr:nvSpPr><xdr:spPr/></xdr:sp>"
      "<xdr:clientData/></xdr:absoluteAnchor><xdr:oneCellAnchor><xdr:from><xdr:col>1</xdr:col><xdr:colOff>0"
      "</xdr:colOff><xdr:row>1</xdr:row><xdr:rowOff>0</xdr:rowOff></xdr:from><xdr:ext cx=\"127000\" "
      "cy=\"254000\"/><xdr:pic><xdr:nvPicPr><xdr:cNvPr id=\"6\" name=\"One\"/><xdr:cNvPicPr/></xdr:nvPicPr>"
      "<xdr:blipFill/><xdr:spPr/></xdr:pic><xdr:clientData/></xdr:oneCellAnchor>";
  Open(book);
  const auto shapes = [&] { return Book().FindWorksheet("Sheet1")->Shapes(); };
  shapes()->AddShape(5, 0, 0, 10, 10)->SetName("Two");
  EXPECT_EQ(shapes()->Item("Two")->Type(), excel::msoAutoShape);
  for (const char* name : {"Chart 1", "Abs", "One", "Two"}) {
    SCOPED_TRACE(name);
    const auto shape = shapes()->Item(name);
    shape->SetLeft(100);
    shape->SetTop(50);
    shape->SetLockAspectRatio(false);
    shape->SetWidth(70);
    shape->SetHeight(35);
    shape->SetName(S(name) + "!");
  }
  SaveAndReopen();
  for (const char* name : {"Chart 1!", "Abs!", "One!", "Two!"}) {
    SCOPED_TRACE(name);
    const auto shape = shapes()->Item(name);
    EXPECT_NEAR(shape->Left(), 100, 0.001);
    EXPECT_NEAR(shape->Top(), 50, 0.001);
    EXPECT_NEAR(shape->Width(), 70, 0.001);
    EXPECT_NEAR(shape->Height(), 35, 0.001);
  }
  EXPECT_EQ(shapes()->Range({"Two!", "One!"})->Width(), 70);
}

TEST_F(SheetShapesTest, TheirNamesAndTextsAreThoseThatWereSetLast) {
  test::PlainBook book;
  book.sheets = {test::SalesSheet("Sheet1")};
  book.sheets[0].frames = {{"a < b", ""}};
  Open(book);
  const auto sheet = Book().FindWorksheet("Sheet1");
  const auto shape = sheet->Shapes()->Item("chart 1");
  const auto texts = [&] { return shape->Name() + "|" + shape->AlternativeText(); };
  EXPECT_EQ(texts(), "Chart 1|a < b");
  shape->SetName("Second & last");
  shape->SetAlternativeText("");
  EXPECT_EQ(texts(), "Second & last|");
  shape->SetAlternativeText("c");
  EXPECT_EQ(texts(), "Second & last|c");
  EXPECT_EQ(sheet->ChartObjects()->Item("SECOND & LAST")->Name(), "Second & last");
  test::ExpectError1004([&] { sheet->ChartObjects()->Item("Chart 1"); });
  test::ExpectError1004([&] { sheet->Shapes()->Item("Chart 1"); });
  shape->Delete();
  test::ExpectError1004([&] { shape->Name(); });
  test::ExpectError1004([&] { shape->AlternativeText(); });
}

TEST_F(SheetShapesTest, ANewShapeIsPlacedLikeAMovedOne) {
  test::PlainBook book;
  book.sheets = {test::SalesSheet("Sheet1")};
  Open(book);
  const auto shapes = [&] { return Book().FindWorksheet("Sheet1")->Shapes(); };
  const double nowhere = std::numeric_limits<double>::infinity();
  test::ExpectError1004([&] { shapes()->AddTextbox(1, 0, 0, nowhere, 20); });
  test::ExpectError1004([&] { shapes()->AddShape(1, nowhere, 0, 10, 20); });
  test::ExpectError1004([&] { Book().FindWorksheet("Sheet1")->ChartObjects()->Add(0, -nowhere, 10, 20); });
  EXPECT_EQ(shapes()->Count(), 0);
  shapes()->AddTextbox(1, -10, -5, 100, 20)->SetName("Box");
  shapes()->AddShape(1, 5, 5, -10, 20)->SetName("Flat");
  SaveAndReopen();
  const auto box = shapes()->Item("Box");
  EXPECT_EQ(box->Left(), 0);
  EXPECT_NEAR(box->Width(), 100, 0.001);
  EXPECT_NEAR(box->Height(), 20, 0.001);
  EXPECT_EQ(shapes()->Item("Flat")->Width(), 0);
  const S drawing = SavedPart("/xl/drawings/drawing1.xml");
  EXPECT_TRUE(test::Has(drawing, "<a:off x=\"0\" y=\"0\"/><a:ext cx=\"1270000\" cy=\"254000\"/>")) << drawing;
  EXPECT_EQ(test::CountOf(drawing, "<xdr:twoCellAnchor>"), 2u);
  EXPECT_FALSE(test::Has(drawing, "\"-")) << drawing;
}

TEST_F(SheetShapesTest, CharactersAreCountedOverBreaksAndParagraphs) {
  const auto run = [](const S& text, const S& properties = "") {
    return "<a:r>" + properties + "<a:t>" + text + "</a:t></a:r>";
  };
  const S bold = "<a:rPr b=\"1\"/>", second = "</a:p><a:p>";
  const S before = run("ab") + "<a:br/>" + run("cdef") + second + run("gh");
  const struct {
    int start, length;
    S text, after;
  } cases[] = {
      {1, 2, "ab", run("ab", bold) + "<a:br/>" + run("cdef") + second + run("gh")},
      {2, 3, "b\nc",
       run("a") + run("b", bold) + "<a:br/>" + run("c", bold) + run("def") + second + run("gh")},
      {5, 2, "de", run("ab") + "<a:br/>" + run("c") + run("de", bold) + run("f") + second + run("gh")},
      {7, 3, "f\ng",
       run("ab") + "<a:br/>" + run("cde") + run("f", bold) + second + run("g", bold) + run("h")},
      {10, 9, "h", run("ab") + "<a:br/>" + run("cdef") + second + run("g") + run("h", bold)},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    test::PlainBook book;
    book.sheets = {test::SalesSheet("Sheet1")};
    book.sheets[0].extraAnchors =
        "<xdr:absoluteAnchor><xdr:pos x=\"0\" y=\"0\"/><xdr:ext cx=\"127000\" cy=\"254000\"/>"
        "<xdr:sp><xdr:nvSpPr><xdr:cNvPr id=\"5\" name=\"Box\"/><xdr:cNvSpPr txBox=\"1\"/>"
        "</xdr:nvSpPr><xdr:spPr/><xdr:txBody><a:bodyPr/><a:p>" +
        before + "</a:p></xdr:txBody></xdr:sp><xdr:clientData/></xdr:absoluteAnchor>";
    Open(book);
    const auto characters =
        Book().FindWorksheet("Sheet1")->Shapes()->Item(1)->TextFrame()->Characters(c.start, c.length);
    EXPECT_EQ(characters->Text(), c.text);
    characters->Font()->SetBold(true);
    SaveAndReopen();
    const S drawing = SavedPart("/xl/drawings/drawing1.xml");
    EXPECT_EQ(test::Between(drawing, "<a:p>", "</xdr:txBody>"), "<a:p>" + c.after + "</a:p>");
  }
}

TEST(ShapeEnumerationsTest, ConvertBothWays) {
  for (const Enumeration* enumeration :
       {&kAutoShapes, &kAutoSizes, &kHorizontalAlignments, &kVerticalAlignments}) {
    for (const EnumerationEntry& entry : enumeration->entries) {
      EXPECT_TRUE(test::IsMatch(S(entry.name), "(msoShape|msoAutoSize|xl)[A-Z0-9][A-Za-z0-9]*"))
          << entry.name;
      EXPECT_EQ(enumeration->Token(entry.number), entry.token) << entry.name;
      EXPECT_EQ(enumeration->Number(entry.token), entry.number) << entry.name;
    }
    EXPECT_TRUE(enumeration->absent.empty() || enumeration->Number(enumeration->absent));
  }
}

}  // namespace
}  // namespace plotsmith::xlsx

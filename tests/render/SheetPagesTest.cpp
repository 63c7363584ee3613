#include "render/sheet/CellLines.h"
#include "render/sheet/MergedCells.h"
#include "render/sheet/PageCuts.h"
#include "render/sheet/SheetPages.h"
#include "tests/render/DrawingTest.h"
#include "xlsx/Sheet.h"
#include "xlsx/package/Xml.h"

namespace plotsmith::render {
namespace {

using S = std::string;
using namespace test;
using xlsx::CellRange;

/// Each character is a point wide.
double CountedWidth(std::string_view text) { return static_cast<double>(text.size()); }

S RangeText(const CellRange& range) {
  return xlsx::CellAddress(range.row1, range.column1) + ":" + xlsx::CellAddress(range.row2, range.column2);
}

TEST(MergedCellsTest, ContainTheCellsOfTheirRangesInAnyOrderOfRows) {
  const struct {
    const char* what;
    std::vector<CellRange> ranges;
  } cases[] = {
      {"none", {}},
      {"one", {{2, 2, 4, 3}}},
      {"side by side", {{2, 4, 2, 5}, {2, 1, 6, 2}, {1, 3, 1, 3}}},
      {"below each other", {{5, 1, 6, 6}, {1, 2, 2, 2}, {3, 2, 3, 4}}},
      {"over each other", {{1, 1, 6, 2}, {2, 2, 3, 6}, {2, 3, 2, 4}}},
  };
  for (const auto& test : cases) {
    MergedCells merged(test.ranges);
    for (const std::int32_t row : {1, 2, 3, 4, 5, 6, 7, 3, 3, 1, 6, 2}) {
      for (std::int32_t column = 1; column <= 7; ++column) {
        const bool holds = std::any_of(test.ranges.begin(), test.ranges.end(), [&](const CellRange& range) {
          return range.row1 <= row && row <= range.row2 && range.column1 <= column && column <= range.column2;
        });
        EXPECT_EQ(merged.AreAt(row, column), holds) << test.what << ' ' << row << ' ' << column;
      }
    }
  }
}

TEST(PageCutsTest, PagesContainWholeRowsAndColumnsUpToBreaks) {
  // The printable area is 100 by 100 points. Columns are 30 and rows 40 points; row 3 is hidden.
  xlsx::PageSetup plain;
  plain.paperWidth = plain.paperHeight = 120;
  plain.left = plain.right = plain.top = plain.bottom = 10;
  const auto with = [&](auto&& change) {
    xlsx::PageSetup setup = plain;
    change(setup);
    return setup;
  };
  xlsx::SheetGeometry geometry{xlsx::GridLines(30, 16384), xlsx::GridLines(40, 1048576)};
  geometry.rows.SetSize(2, 2, 0);
  const struct {
    xlsx::PageSetup setup;
    std::vector<CellRange> ranges;
    S pages;
    double scale = 1;
  } cases[] = {
      {plain, {{1, 1, 1, 1}}, "A1:A1 "},
      {plain, {{1, 1, 3, 3}}, "A1:C3 "},
      {plain, {{1, 1, 5, 4}}, "A1:C3 A4:C5 D1:D3 D4:D5 "},
      {with([](auto& setup) { setup.overThenDown = true; }), {{1, 1, 5, 4}}, "A1:C3 D1:D3 A4:C5 D4:D5 "},
      {plain, {{2, 2, 2, 2}, {4, 1, 4, 5}}, "B2:B2 A4:C4 D4:E4 "},
      {with([](auto& setup) {
         setup.rowBreaks = {1, 4};
       }),
       {{1, 1, 5, 1}},
       "A1:A1 A2:A4 A5:A5 "},
      {with([](auto& setup) { setup.columnBreaks = {2}; }), {{1, 1, 1, 4}}, "A1:B1 C1:D1 "},
      // A column that is wider than a page takes a page.
      {with([](auto& setup) { setup.scale = 4; }), {{1, 1, 2, 1}}, "A1:A1 A2:A2 ", 4},
      // 4 columns are 120 points and 6 rows are 200 points, which gives the scale. Breaks are ignored.
      {with([](auto& setup) {
         setup.fits = true;
         setup.rowBreaks = {1};
       }),
       {{1, 1, 6, 4}},
       "A1:D6 ",
       0.5},
      {with([](auto& setup) {
         setup.fits = true;
         setup.fitHeight = 0;
       }),
       {{1, 1, 6, 4}},
       "A1:D4 A5:D6 ",
       0.83},
      {with([](auto& setup) { setup.fits = true; }), {{1, 1, 1, 1}}, "A1:A1 "},
  };
  for (const auto& c : cases) {
    const PageCuts cuts = CutPages(c.setup, geometry, c.ranges, 100);
    S pages;
    for (const CellRange& page : cuts.pages) pages += RangeText(page) + " ";
    EXPECT_EQ(pages, c.pages);
    EXPECT_DOUBLE_EQ(cuts.scale, c.scale) << c.pages;
    EXPECT_EQ(cuts.count, cuts.pages.size());
  }
  const PageCuts all = CutPages(plain, geometry, {{1, 1, 1048576, 16384}}, 3);
  EXPECT_EQ(all.pages.size(), 3u);
  EXPECT_EQ(all.count, std::size_t{524288} * 5462);
}

TEST(CellLinesTest, TextsWrapAtBlanksAndInsideOfLongWords) {
  const struct {
    const char* text;
    double width;
    Texts lines;
  } cases[] = {
      {"", 5, {""}},
      {"one two", 7, {"one two"}},
      {"one two", 6, {"one", "two"}},
      {"one  two three", 9, {"one  two", "three"}},
      {"a\nb\r\n\nc", 5, {"a", "b", "", "c"}},
      {"abcdefgh ij", 3, {"abc", "def", "gh", "ij"}},
      {"\xC3\xA4\xC3\xB6\xC3\xBC", 2, {"\xC3\xA4", "\xC3\xB6", "\xC3\xBC"}},
      {"ab", 0, {"a", "b"}},
      {"in 東京都", 7, {"in 東", "京都"}},
  };
  for (const auto& c : cases) EXPECT_EQ(WrappedLines(c.text, c.width, CountedWidth), c.lines) << c.text;
}

/// Tests the pages of a sheet in a workbook with these styles: bold (1), a red fill and a line below (2),
/// wrapped (3), centred (4), a number format (5), at the top (6), in the middle (7), right (8), indented on
/// the left (9) and on the right (10), struck (11), wrapped in the middle (12), centred across (13), filled
/// with text (14).
class SheetPagesTest : public DrawingTest {
 protected:
  static constexpr const char* kStyles =
      "<styleSheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"><fonts><font>"
      "<sz val=\"11\"/><name val=\"Calibri\"/></font><font><b/><sz val=\"20\"/><color rgb=\"FF0000FF\"/>"
      "<name val=\"Arial\"/></font><font><strike/><sz val=\"10\"/><name val=\"Calibri\"/></font>"
      "</fonts><fills><fill/><fill><patternFill patternType=\"solid\"><fgColor rgb=\"FFFF0000\"/>"
      "</patternFill></fill></fills><borders><border/><border><bottom style=\"thick\"/></border>"
      "</borders><cellXfs><xf/><xf fontId=\"1\"/><xf fillId=\"1\" borderId=\"1\"/><xf>"
      "<alignment wrapText=\"1\"/></xf><xf><alignment horizontal=\"center\"/></xf><xf numFmtId=\"4\"/>"
      "<xf><alignment vertical=\"top\"/></xf><xf><alignment vertical=\"center\"/></xf><xf>"
      "<alignment horizontal=\"right\"/></xf><xf><alignment horizontal=\"left\" indent=\"2\"/></xf>"
      "<xf><alignment horizontal=\"right\" indent=\"1\"/></xf><xf fontId=\"2\"/><xf>"
      "<alignment vertical=\"center\" wrapText=\"1\"/></xf><xf><alignment horizontal=\"centerContinuous\"/>"
      "</xf><xf><alignment horizontal=\"fill\"/></xf></cellXfs></styleSheet>";

  /// Draws the pages, with the installed fonts or with other measures of texts.
  std::vector<Drawing> Pages(const PlainSheet& sheet, Paper paper = Paper::kPrinted,
                             const TextMeasure& measure = SharedFonts()) {
    PlainBook book;
    book.sheets = {sheet};
    book.styles = kStyles;
    book.workbookExtra = workbookExtra_;
    xlsx::Workbook& opened = Open(book);
    notes_.clear();
    return DrawSheet(opened, *opened.Tabs().All().front(), paper, measure, notes_);
  }
  static RawCell Cell(int style, const S& text) {
    return {" s=\"" + std::to_string(style) + "\" t=\"str\"><v>" + text + "</v></c>"};
  }
  S workbookExtra_;
};

TEST_F(SheetPagesTest, CellsHaveTheirTextsFillsAndBorders) {
  PlainSheet sheet{.name = "Sheet1"};
  sheet.rows = {
      {Cell(1, "Bold"), 12.0}, {Cell(2, "Red")}, {Cell(4, "Mid"), std::monostate(), S("right of it")}};
  const auto pages = Pages(sheet);
  ASSERT_EQ(pages.size(), 1u);
  const Drawing& page = pages.front();
  EXPECT_EQ(page.width, 612);
  EXPECT_EQ(page.height, 792);
  EXPECT_EQ(page.title, "Sheet1");
  EXPECT_EQ(TextsOf(page, Role::kCellText), (Texts{"Bold", "12", "Red", "Mid", "right of it"}));
  const auto texts = ItemsOf(page, Role::kCellText);
  const auto& bold = std::get<TextItem>(texts[0].content);
  EXPECT_EQ(bold.font, (Font{"Arial", 20, true, false, false}));
  EXPECT_EQ(HexOf(bold.color), "#0000FF");
  const auto boxes = BoxesOf(page, Role::kCellText);
  // The text is left-aligned in the first cell, right-aligned in the second, and centred.
  const double column = 48, left = 50.4;
  EXPECT_NEAR(boxes[0].left, left + 1.5, 0.01);
  EXPECT_NEAR(boxes[1].Right(), left + 2 * column - 1.5, 0.01);
  EXPECT_NEAR(boxes[3].Center().x, left + column / 2, 0.01);
  for (std::size_t row : {0u, 2u, 3u})
    EXPECT_GE(boxes[row].top, 54 + 15 * (row == 0 ? 0 : row == 2 ? 1 : 2) - 11.0);
  const auto cells = ItemsOf(page, Role::kCell);
  ASSERT_EQ(cells.size(), 2u);
  EXPECT_EQ(FillOf(cells[0]), "#FF0000");
  EXPECT_EQ(std::get<PathItem>(cells[1].content).stroke.width, 2.25);
  EXPECT_EQ(notes_, Notes());
}

/// Returns the texts of a sheet drawn as one page, each with its left, right and upper edge in points. The
/// clip of a text is in brackets before it, and a line through it is behind it as "/" and its height.
S PlacesOf(const Drawing& page) {
  const auto number = [](double value) { return xlsx::xml::Number(std::round(value * 100) / 100); };
  S words;
  int clips = 0;  // The first two are those of the page and of its cells.
  for (const Item& item : page.items) {
    const Rect box = BoundsOf(item);
    if (const auto* clip = std::get_if<PushClip>(&item.content)) {
      if (++clips <= 2) continue;
      const Rect seen = clip->path.Bounds();
      words += "[" + number(seen.left) + " " + number(seen.Right()) + "] ";
    } else if (const auto* text = std::get_if<TextItem>(&item.content)) {
      words += text->text + " " + number(box.left) + " " + number(box.Right()) + " " + number(box.top) + ", ";
    } else if (item.tag.role == Role::kCellText && std::holds_alternative<PathItem>(item.content)) {
      words += "/" + number(box.top) + " ";
    }
  }
  return words;
}

TEST_F(SheetPagesTest, TextsAreAlignedInTheirCellsAndExtendOverEmptyOnes) {
  // Columns are 48 points wide and rows 15 high. Letters are 5.5 points wide and 11 high.
  const std::monostate none;
  const S ten = "abcdefghij", five = "abcde", words = "one two three";
  const struct {
    const char* what;
    std::vector<PlainRow> rows;
    S places, columns = "";
  } cases[] = {
      {"text", {{S("ab")}}, "ab 1.5 12.5 3.25, "},
      {"number", {{12.0}}, "12 35.5 46.5 3.25, "},
      {"Boolean", {{RawCell{" t=\"b\"><v>1</v></c>"}}}, "TRUE 13 35 3.25, "},
      {"error", {{RawCell{" t=\"e\"><v>#N/A</v></c>"}}}, "#N/A 13 35 3.25, "},
      {"top", {{Cell(6, "ab")}}, "ab 1.5 12.5 0.75, "},
      {"middle", {{Cell(7, "ab")}}, "ab 1.5 12.5 2, "},
      {"right", {{Cell(8, "ab")}}, "ab 35.5 46.5 3.25, "},
      {"centre", {{Cell(4, "ab")}}, "ab 18.5 29.5 3.25, "},
      {"indented", {{Cell(9, "ab")}}, "ab 34.5 45.5 3.25, "},
      {"indented on the right", {{Cell(10, "ab")}}, "ab 19 30 3.25, "},
      {"struck", {{Cell(11, "ab")}}, "/8.95 ab 1.5 11.5 4.25, "},
      {"wrapped", {{Cell(3, words)}}, "[0 48] one two 1.5 40 0, three 1.5 29 11, "},
      {"wrapped in the middle", {{Cell(12, five)}}, "abcde 1.5 29 2, "},
      {"to the right", {{ten, none}}, "abcdefghij 1.5 56.5 3.25, "},
      {"beyond the last column", {{ten}}, "abcdefghij 1.5 56.5 3.25, "},
      {"to the right, not far enough", {{ten, 1.0}}, "[0 48] abcdefghij 1.5 56.5 3.25, 1 89 94.5 3.25, "},
      {"to the left", {{none, Cell(8, ten)}}, "abcdefghij 39.5 94.5 3.25, "},
      {"to the left, not far enough",
       {{S("x"), Cell(8, ten)}},
       "x 1.5 7 3.25, [48 96] abcdefghij 39.5 94.5 3.25, "},
      {"to the left of the sheet", {{Cell(8, ten)}}, "[0 48] abcdefghij -8.5 46.5 3.25, "},
      {"to both sides", {{none, Cell(4, ten), none}}, "abcdefghij 44.5 99.5 3.25, "},
      {"to one side", {{S("x"), Cell(4, ten), none}}, "x 1.5 7 3.25, [48 144] abcdefghij 44.5 99.5 3.25, "},
      {"centred across", {{none, Cell(13, ten), none}}, "abcdefghij 44.5 99.5 3.25, "},
      {"filled", {{Cell(14, ten), none}}, "[0 48] abcdefghij 1.5 56.5 3.25, "},
      {"beyond a hidden column",
       {{ten, none, none}},
       "abcdefghij 1.5 56.5 3.25, ",
       "<cols><col min=\"2\" max=\"2\" width=\"9\" hidden=\"1\"/></cols>"},
      {"in a hidden column",
       {{S("a"), S("b"), S("c")}},
       "a 1.5 7 3.25, c 49.5 55 3.25, ",
       "<cols><col min=\"2\" max=\"2\" width=\"9\" hidden=\"1\"/></cols>"},
  };
  for (const auto& test : cases) {
    PlainSheet sheet{.name = "Sheet1"};
    sheet.rows = test.rows;
    sheet.beforeData = test.columns;
    const auto pages = Pages(sheet, Paper::kOne, EvenMeasure());
    ASSERT_EQ(pages.size(), 1u) << test.what;
    EXPECT_EQ(PlacesOf(pages[0]), test.places) << test.what;
  }
}

TEST_F(SheetPagesTest, MergedCellsAreOneAndHiddenRowsAreNone) {
  PlainSheet sheet{.name = "Sheet1"};
  sheet.rows = {{Cell(2, "Over"), Cell(2, "lost"), S("C")}, {S("next")}};
  sheet.afterData = "<mergeCells><mergeCell ref=\"A1:B1\"/></mergeCells>";
  const auto pages = Pages(sheet);
  EXPECT_EQ(TextsOf(pages.at(0), Role::kCellText), (Texts{"C", "next", "Over"}));
  EXPECT_NEAR(BoxesOf(pages[0], Role::kCell).at(0).width, 96, 0.01);
  sheet.rows = {{S("Over"), Cell(2, "lost")}};
  EXPECT_EQ(FillOf(ItemsOf(Pages(sheet).at(0), Role::kCell).at(0)), "#FFFFFF");
}

TEST_F(SheetPagesTest, ThePrintAreaIsAllThatIsPrinted) {
  PlainSheet sheet{.name = "Sheet1"};
  sheet.rows = {{S("A1"), S("B1")}, {S("A2"), S("B2")}, {S("A3"), S("B3")}};
  workbookExtra_ =
      "<definedNames><definedName name=\"_xlnm.Print_Area\" localSheetId=\"0\">Sheet1!$B$1:$B$2,Sheet1!$A$3"
      "</definedName></definedNames>";
  const auto pages = Pages(sheet);
  ASSERT_EQ(pages.size(), 2u);
  EXPECT_EQ(TextsOf(pages[0], Role::kCellText), (Texts{"B1", "B2"}));
  EXPECT_EQ(TextsOf(pages[1], Role::kCellText), (Texts{"A3"}));
}

TEST_F(SheetPagesTest, ChartsAreInPlaceAndContinueOnFurtherPages) {
  PlainSheet sheet{.name = "Sheet1"};
  sheet.rows = {{S("Above")}};
  const S bars = ColumnsXml(SeriesXml(0, {1, 2}));
  const S chart = ChartPartXml(PlotXml(bars + AxesXml()));
  sheet.frames = {{"", chart, 1, 40, 4, 10}};
  const auto printed = Pages(sheet);
  ASSERT_EQ(printed.size(), 2u) << "rows 1 to 45 are on the first page";
  for (const Drawing& page : printed) EXPECT_EQ(ItemsOf(page, Role::kBar).size(), 2u);
  const auto one = Pages(sheet, Paper::kOne);
  ASSERT_EQ(one.size(), 1u);
  EXPECT_EQ(one[0].width, 5 * 48);
  EXPECT_EQ(one[0].height, 50 * 15);
  const Rect area = BoxOf(one[0], Role::kChartArea);
  EXPECT_NEAR(area.left, 48, 1);
  EXPECT_NEAR(area.top, 600, 1);
  EXPECT_NEAR(area.width, 192, 2);
  EXPECT_EQ(BoxesOf(one[0], Role::kBar).size(), 2u);
  EXPECT_NE(one[0].description, "");
}

TEST_F(SheetPagesTest, ASheetOfChartsAloneIsAsLargeAsTheyAreAndNamesThem) {
  const S columns = ColumnsXml(SeriesXml(0, {1, 2})) + AxesXml();
  const auto titled = [&](const S& text) {
    return ChartPartXml(TitleXml(text) + "<c:plotArea>" + columns + "</c:plotArea>");
  };
  PlainSheet sheet{.name = "Sheet1"};
  sheet.frames = {{"", titled("Sales"), 1, 2, 4, 10}, {"", titled("Costs"), 1, 14, 4, 10}};
  const auto pages = Pages(sheet, Paper::kOne);
  ASSERT_EQ(pages.size(), 1u);
  EXPECT_EQ(pages[0].width, 5 * 48);
  EXPECT_EQ(pages[0].height, 24 * 15);
  EXPECT_EQ(TextsOf(pages[0], Role::kTitle), (Texts{"Sales", "Costs"}));
  const S& text = pages[0].description;
  EXPECT_TRUE(text.starts_with("Sales\n")) << text;
  EXPECT_NE(text.find("\nCosts\n"), S::npos) << text;
  EXPECT_EQ(text.find("\n\n"), S::npos) << text;
}

TEST_F(SheetPagesTest, PagesAreCentredBetweenTheirMargins) {
  PlainSheet sheet{.name = "Sheet1", .rows = {{S("a"), S("b")}}};
  sheet.afterData =
      "<printOptions horizontalCentered=\"1\" verticalCentered=\"1\"/><pageMargins left=\"1\" right=\"2\" "
      "top=\"1\" bottom=\"3\" header=\"0\" footer=\"0\"/>";
  workbookExtra_ =
      "<definedNames><definedName name=\"_xlnm.Print_Titles\" localSheetId=\"0\">Sheet1!$1:$1</definedName>"
      "</definedNames>";
  const auto boxes = BoxesOf(Pages(sheet, Paper::kPrinted, EvenMeasure()).at(0), Role::kCellText);
  // 612 by 792 points with the cells of 96 by 15 in the middle of what the margins leave
  EXPECT_NEAR(boxes.at(0).left, 72 + (612 - 3 * 72 - 96) / 2.0 + 1.5, 1e-6);
  EXPECT_NEAR(boxes.at(0).top, 72 + (792 - 4 * 72 - 15) / 2.0 + 3.25, 1e-6);
  EXPECT_EQ(notes_, Notes{"Rows and columns that repeat on each page are drawn once."});
  workbookExtra_ =
      "<definedNames><definedName name=\"Own\" localSheetId=\"0\">Sheet1!$1:$1</definedName></definedNames>";
  Pages(sheet);
  EXPECT_EQ(notes_, Notes());
}

TEST_F(SheetPagesTest, WhatIsntDrawnIsNotedAndPagesAreBounded) {
  PlainSheet sheet{.name = "Sheet1"};
  sheet.rows = {{1.0}};
  sheet.afterData =
      "<conditionalFormatting sqref=\"A1\"/><printOptions headings=\"1\"/>"
      "<headerFooter><oddHeader>x</oddHeader></headerFooter>";
  EXPECT_EQ(Pages(sheet).size(), 1u);
  EXPECT_EQ(notes_, (Notes{"Headers and footers aren't drawn.", "Conditional formats of cells aren't drawn.",
                           "The letters of columns and the numbers of rows aren't drawn."}));
  PlainSheet far{.name = "Sheet1", .rows = {{1.0}}, .top = 1000000, .left = 3};
  EXPECT_EQ(Pages(far).size(), 100u);
  EXPECT_EQ(notes_, Notes{"The sheet has 22223 pages; the first 100 are drawn."});
  EXPECT_EQ(Pages(far, Paper::kOne).size(), 1u);
  EXPECT_EQ(notes_,
            Notes{"The sheet is larger than one page can be, which is 14400 by 14400 points; A1 to C960 is "
                  "drawn."});
  EXPECT_EQ(Pages({.name = "Sheet1"}).size(), 0u);
}

}  // namespace
}  // namespace plotsmith::render

#include <gtest/gtest.h>

#include "runtime/Strings.h"
#include "tests/support/ErrorOf.h"
#include "xlsx/base/Limits.h"
#include "xlsx/package/MemoryStream.h"
#include "xlsx/package/PackageError.h"
#include "xlsx/package/Xml.h"
#include "xlsx/sheet/SharedStrings.h"
#include "xlsx/sheet/SheetScanner.h"

namespace plotsmith::xlsx {
namespace {

/// Returns a value as a letter and its contents: n1.5, s3 (shared), t"text", b1, e"#N/A", or "-".
std::string Show(const SheetContents& sheet, std::int32_t row, std::int32_t column) {
  using Kind = PackedValue::Kind;
  const PackedValue value = sheet.cells.ValueAt(row, column);
  switch (value.GetKind()) {
    case Kind::kEmpty:
      return "-";
    case Kind::kNumber:
      return "n" + xml::Number(value.Number());
    case Kind::kSharedText:
      return "s" + std::to_string(value.Index());
    case Kind::kOwnText:
      return "t" + std::string(sheet.cells.texts.At(value.Index()));
    case Kind::kBoolean:
      return "b" + std::to_string(value.Index());
    case Kind::kError:
      return "e" + std::string(sheet.cells.texts.At(value.Index()));
  }
  return "?";
}

SheetContents Scan(std::string_view text, std::size_t piece = 1 << 20) {
  MemoryStream stream(text, piece);
  return ScanSheet(stream, DateSystem::k1900);
}

/// Returns all that a scan tells: the cells with their styles, the used range, heights of rows, formulas and
/// merged cells.
std::string Dump(const SheetContents& sheet) {
  std::string text;
  for (std::int32_t column = 1; column <= sheet.cells.ColumnCount(); ++column) {
    for (std::int32_t row = 0; (row = sheet.cells.NextRow(row, column)) != 0;) {
      const std::string value = Show(sheet, row, column);
      const std::uint32_t style = sheet.cells.StyleAt(row, column);
      if (value == "-" && style == 0) continue;
      text += CellAddress(row, column) + "=" + value + (style == 0 ? "" : "/" + std::to_string(style)) + " ";
    }
  }
  if (sheet.used) text += "used " + RangeAddress(*sheet.used);
  for (const auto& [row, height] : sheet.rowHeights)
    text += " ht" + std::to_string(row) + "=" + xml::Number(height);
  if (sheet.formulas) text += " formulas";
  for (const CellPlace& place : sheet.formulasWithoutResult)
    text += " -" + CellAddress(place.row, place.column);
  for (const CellRange& range : sheet.mergedCells) text += " merged " + RangeAddress(range);
  return text;
}

const std::string kSheet =
    "<?xml version='1.0'?><!-- <sheetData> --><worksheet xmlns='m'><dimension ref='A1:ZZ999'/>"
    "<sheetData>\r\n<row r='2' ht='30' spans='1:3'><c r='A2'><v>1</v></c><c r=\"C2\" s=\"7\" t=\"s\">"
    "<v>12</v></c><c t='b'><v>1</v></c></row><row hidden='1'><c><v> -2.5e-3 </v></c><c r='B3' t='str'>"
    "<f>A&amp;\"&gt;\"</f><v>a&amp;b_x000D_</v></c><c r='C3' t='e'><f t='shared' si='0'/><v>#N/A</v></c>"
    "<c r='D3' t='inlineStr'><is><r><t>rich</t></r><r><rPr><b/></rPr><t xml:space='preserve'> text</t>"
    "</r><rPh><t>no</t></rPh></is></c><c r='E3' s='3'/></row><!-- <row/> --><row r='10'><c r='A10' t='d'>"
    "<v>2020-01-01T12:00:00</v></c><c r='B10'><v><![CDATA[7]]></v><extLst><v>9</v></extLst></c>"
    "<c r='C10' t='inlineStr'><is/></c><c r='D10'><v>x</v></c><c r='E10'><v>123456789012345678</v></c>"
    "<c r='F10'><f><![CDATA[A1<2]]></f><v>5</v></c>"
    "<c r='AB10'><v>0.1</v></c></row></sheetData><pageMargins/></worksheet>";

TEST(SheetScannerTest, ReadsEveryKindOfCellAtEveryWindowBorder) {
  for (const std::size_t piece : {std::size_t{1} << 20, std::size_t{1000}, std::size_t{7}, std::size_t{1}}) {
    const SheetContents sheet = Scan(kSheet, piece);
    // The used range is independent of the dimension.
    EXPECT_EQ(Dump(sheet),
              "A2=n1 A3=n-0.0025 A10=n43831.5 B3=ta&b\r B10=n7 C2=s12/7 C3=e#N/A D2=b1 D3=trich text "
              "E3=-/3 E10=n123456789012345680 F10=n5 AB10=n0.1 used $A$2:$AB$10 ht2=30 ht3=0 formulas")
        << piece;
    EXPECT_TRUE(sheet.head.ends_with("<dimension ref='A1:ZZ999'/>")) << piece;
  }
}

// Nearly all cells are written with double quotes and nothing else than r, s and t, and take a shorter way.
TEST(SheetScannerTest, TheUsualFormOfCellsAndRowsReadsAsTheOthers) {
  const std::pair<const char*, const char*> cases[] = {
      {R"(<row r="1"><c r="A1"><v>1</v></c><c r="B1" s="12"><v>-2.5</v></c><c r="AB1" t="s"><v>70</v></c></row>)",
       "A1=n1 B1=n-2.5/12 AB1=s70 used $A$1:$AB$1"},
      {R"(<row r="1048576" spans="1:3"><c r="XFD1048576" s="3" t="s"><v>4294967295</v></c></row>)",
       "XFD1048576=s4294967295/3 used $XFD$1048576"},
      {R"(<row r="7"><c r="ZZ7" s="2"/><c r="AAA7"/></row>)", "ZZ7=-/2 used $ZZ$7"},
      // Places that aren't written follow the previous cell and row.
      {R"(<row r="3"><c r="B3"><v>1</v></c><c><v>2</v></c></row><row><c><v>3</v></c></row>)"
       R"(<row r="9"><c r="C9"/><c s="4"><v>4</v></c></row><row r="10"><c><v>5</v></c></row>)",
       "A4=n3 A10=n5 B3=n1 C3=n2 D9=n4/4 used $A$3:$D$10"},
      {R"(<c><v>1</v></c>)", "A1=n1 used $A$1"},
      // Numbers: signs, points, exponents, more digits than are exact, and texts that are none.
      {R"(<row r="2"><c r="A2"><v>0.1</v></c><c r="B2"><v>-.5</v></c><c r="C2"><v>5.</v></c>)"
       R"(<c r="D2"><v>123456789012.345</v></c><c r="E2"><v>1234567890123456789012</v></c><c r="F2"><v>1E-7</v></c>)"
       R"(<c r="G2"><v>-</v></c><c r="H2"><v></v></c><c r="I2"><v>1.2.3</v></c><c r="J2"><v>00000000000000000.25</v></c></row>)",
       "A2=n0.1 B2=n-0.5 C2=n5 D2=n123456789012.345 E2=n1234567890123456774144 F2=n1e-07 J2=n0.25 used "
       "$A$2:$J$2"},
      // Indices of shared texts that are none.
      {R"(<row r="2"><c r="A2" t="s"><v>4294967296</v></c><c r="B2" t="s"><v>99999999999999999999999</v></c>)"
       R"(<c r="C2" t="s"><v>1.5</v></c><c r="D2" t="s"><v></v></c><c r="E2" t="s"><v>1x</v></c><c r="F2" t="s"><v>0</v></c>)"
       R"(<c r="G2" t="s"><v>-1</v></c></row>)",
       "F2=s0 used $F$2"},
      // Heights of rows, with and without other attributes.
      {R"(<row r="2" ht="30"/><row r="3" spans="1:2" hidden="1"></row><row r="4" ht="x"><c r="A4"><v>1</v></c></row>)"
       R"(<row r="5" customHeight="1" ht="20.5" hidden="0"/><row r="6" hidden="true" ht="9"/><row r="7" height="3"/>)",
       "A4=n1 used $A$4 ht2=30 ht3=0 ht5=20.5 ht6=0"},
      // Formulas before and after their results.
      {R"(<row r="2"><c r="A2"><f>B2&gt;1</f><v>1</v></c><c r="B2"><v>2</v><f a="1">1</f></c><c r="C2"><f/><v>3</v></c>)"
       R"(<c r="D2"><f t="shared" si="0"/></c><c r="E2" t="str"><f>x</f><v>a</v></c><c r="F2"><f></f></c></row>)",
       "A2=n1 B2=n2 C2=n3 E2=ta used $A$2:$F$2 formulas -D2 -F2"},
      {R"(<row r="3"><c r="A3"><f t="array" ref="A3">1</f><v>8</v></c><c r="B3"><f si="0"/><v>9</v></c></row>)",
       "A3=n8 B3=n9 used $A$3:$B$3 formulas"},
      // All types, and types that don't exist.
      {R"(<row r="2"><c r="A2" t="b"><v>true</v></c><c r="B2" t="b"><v>0</v></c><c r="C2" t="e"><v>#DIV/0!</v></c>)"
       R"(<c r="D2" t="n"><v>4</v></c><c r="E2" t="x"><v>5</v></c><c r="F2" t="d"><v>2020-01-01</v></c>)"
       R"(<c r="G2" t="d"><v>some &lt;day</v></c><c r="H2" t="str"><v>a &amp; b</v></c><c r="I2" t="b"><v>?</v></c></row>)",
       "A2=b1 B2=b0 C2=e#DIV/0! D2=n4 E2=n5 F2=n43831 G2=tsome <day H2=ta & b I2=b0 used $A$2:$I$2"},
      // Elements that aren't cells or values, and children of cells in any order.
      {R"(<row r="2"><cx r="A2"><v>1</v></cx><c r="B2"><vx>1</vx><v>2</v></c><c r="C2"><fx>1</fx><v>3</v></c>)"
       R"(<c r="D2"><extLst><v>9</v></extLst></c><c r="E2"><v><!-- 1 -->2</v></c><c r="F2"><v><![CDATA[3]]>4</v></c></row>)",
       "B2=n2 C2=n3 E2=n2 F2=n34 used $B$2:$F$2"},
      {R"(<row r="2"><c r="A2" t="inlineStr"><is><t>a</t><rPh><t>b</t></rPh><r><t>c_x0041_</t></r></is></c>)"
       R"(<c r="B2" t="inlineStr"><f>1</f><is><t>d</t></is></c><c r="C2" t="str"><f>1</f><v><![CDATA[]]></v></c>)"
       R"(<c r="F2"><is><t>e</t></is></c><c r="D2"><a/><f>1</f><v>5</v></c><c r="E2" t="d"><a/><v>2020-01-02</v></c></row>)",
       "A2=tacA B2=td C2=t D2=n5 E2=n43832 F2=te used $A$2:$F$2 formulas"},
      // Formulas with character data, comments and children.
      {R"(<row r="2"><c r="A2"><f><![CDATA[B2<1]]></f><v>5</v></c><c r="B2"><f><!-- > -->1</f><v>6</v></c>)"
       R"(<c r="C2" t="str"><f>1<![CDATA["a>b"]]></f><v>ab</v></c><c r="D2"><v>7</v><f><![CDATA[1]]></f></c>)"
       R"(<c r="E2"><f t="array"><!----></f></c><c r="F2" t="b"><f><a/>1</f><v>1</v></c><c r="G2"><v>8</v></c></row>)",
       "A2=n5 B2=n6 C2=tab D2=n7 F2=b1 G2=n8 used $A$2:$G$2 formulas -E2"},
      // Formulas whose result is empty. For a text, this is a result.
      {R"(<row r="2"><c r="A2"><f>1</f><v/></c><c r="B2"><f>1</f><v></v></c><c r="C2" t="str"><f>a</f><v></v></c>)"
       R"(<c r="D2" t="str"><f>a</f><v/></c></row><row r="4"><c r="C4" s="1"><f t="shared" si="0"/></c></row>)",
       "C2=t C4=-/1 used $A$2:$D$4 formulas -A2 -B2 -C4"},
      // Cells that aren't used, cells that are used because of their style or their formula.
      {R"(<row r="2"><c r="B2"><v>1</v></c></row><row r="9"><c r="C9"/><c r="D9"></c><c r="E9" t="inlineStr"><is/></c></row>)",
       "B2=n1 used $B$2"},
      {R"(<row r="2"><c r="B2"><v>1</v></c></row><row r="9"><c r="C9" s="1"/></row>)",
       "B2=n1 C9=-/1 used $B$2:$C$9"},
      {R"(<row r="2"><c r="B2"><v>1</v></c></row><row r="9"><c r="C9"><a/><f>1+1</f></c></row>)",
       "B2=n1 used $B$2:$C$9 formulas -C9"},
      // Cells and rows out of order, of which the last one counts.
      {R"(<row r="5"><c r="B5"><v>5</v></c><c r="A5"><v>4</v></c></row><row r="2"><c r="B2" s="2"><v>2</v></c></row>)"
       R"(<row r="5"><c r="B5"><v>6</v></c></row>)",
       "A5=n4 B2=n2/2 B5=n6 used $A$2:$B$5"},
      // All kinds of white space.
      {"<row r=\"3\"\tht=\"30\"><c r=\"A3\" t=\"s\"><v> 5 </v></c></row>"
       "<row r=\"4\"\nhidden=\"on\"><c r=\"A4\"><v>\n+2.5</v></c></row>",
       "A3=s5 A4=n2.5 used $A$3:$A$4 ht3=30 ht4=0"},
  };
  for (const auto& [rows, dump] : cases) {
    const std::string usual = std::string("<w><sheetData>") + rows + "</sheetData></w>";
    const std::string sheets[] = {usual,
                                  runtime::Replace(usual, "\"", "'"),
                                  runtime::Replace(usual, "<c ", "<c\n "),
                                  runtime::Replace(usual, "\">", "\" >"),
                                  runtime::Replace(usual, "=\"", " =\r\n\""),
                                  runtime::Replace(usual, "\"/>", "\" />")};
    for (const std::string& sheet : sheets) {
      for (const std::size_t piece : {std::size_t{1} << 20, std::size_t{1}, std::size_t{13}})
        EXPECT_EQ(Dump(Scan(sheet, piece)), dump) << sheet << ' ' << piece;
    }
    std::string prefixed = runtime::Replace(runtime::Replace(usual, "</", "</y:"), "<", "<y:");
    for (const auto& [wrong, right] : {std::pair{"<y:/y:", "</y:"}, {"<y:!", "<!"}})
      prefixed = runtime::Replace(prefixed, wrong, right);
    EXPECT_EQ(Dump(Scan(prefixed)), dump) << prefixed;
  }
}

TEST(SheetScannerTest, TheHeadEndsBeforeTheCells) {
  const std::string cells = "<row r=\"1\"><c r=\"A1\"><v>1</v></c></row></sheetData></w>";
  for (const std::string head : {"<w>", "<w ><!-- <sheetData> -- > --><a b='c'/>text<sheetDataX/>",
                                 "<w><!--><sheetData>-->", "<?xml version=\"1.0\"?>\n<w x=\"1\">\r\n"}) {
    for (const std::size_t piece : {std::size_t{1} << 20, std::size_t{1}}) {
      for (const char* data : {"<sheetData>", "<sheetData\n>", "<sheetData a=\"1\">"}) {
        const SheetContents sheet = Scan(head + data + cells, piece);
        EXPECT_EQ(sheet.head, head);
        EXPECT_EQ(Dump(sheet), "A1=n1 used $A$1") << head << data;
      }
      for (const char* data : {"<sheetData/>", "<sheetData />", "<sheetData a='1'/>"}) {
        const SheetContents sheet =
            Scan(head + data + "<mergeCells><mergeCell ref='A1:B1'/></mergeCells></w>", piece);
        EXPECT_EQ(sheet.head, head);
        EXPECT_EQ(Dump(sheet), " merged $A$1:$B$1") << head << data;
      }
    }
  }
}

TEST(SheetScannerTest, MergedCellsAreFoundAfterAllPrecedingElements) {
  const std::vector<CellRange> merged = {{1, 1, 2, 2}, {4, 3, 4, 5}};
  for (const std::string before : {"", "sheetCalcPr", "sheetProtection", "protectedRanges", "scenarios",
                                   "autoFilter", "sortState", "dataConsolidate", "customSheetViews"}) {
    const std::string element = before.empty() ? "" : "<" + before + "><a/></" + before + ">";
    EXPECT_EQ(
        Scan("<w><sheetData/>" + element +
             "<mergeCells><mergeCell ref='A1:B2'/><mergeCell ref='C4:E4'/></mergeCells><phoneticPr/></w>")
            .mergedCells,
        merged)
        << before;
  }
}

TEST(SheetScannerTest, PrefixesAndEncodings) {
  std::string prefixed = runtime::Replace(runtime::Replace(kSheet, "</", "</x:"), "<", "<x:");
  for (const auto& [wrong, right] : {std::pair{"<x:/x:", "</x:"}, {"<x:?", "<?"}, {"<x:!", "<!"}})
    prefixed = runtime::Replace(prefixed, wrong, right);
  const std::u16string units = runtime::ToUtf16(runtime::Replace(kSheet, "rich", "r\u00EDch"));
  std::string big = "\xFE\xFF", little = "\xFF\xFE";
  for (const char16_t unit : units) {
    big += {static_cast<char>(unit >> 8), static_cast<char>(unit)};
    little += {static_cast<char>(unit), static_cast<char>(unit >> 8)};
  }
  EXPECT_EQ(Show(Scan(prefixed), 3, 4), "trich text");
  EXPECT_EQ(Show(Scan("\xEF\xBB\xBF" + kSheet), 3, 4), "trich text");
  EXPECT_EQ(Show(Scan(big), 3, 4), "tr\u00EDch text");
  EXPECT_EQ(Show(Scan(little, 5), 10, 28), "n0.1");
}

TEST(SheetScannerTest, SheetsWithoutCells) {
  for (const char* text : {"<worksheet><sheetData/></worksheet>",
                           "<worksheet><sheetData></sheetData></worksheet>", "<worksheet/>"}) {
    EXPECT_FALSE(Scan(text).used) << text;
  }
}

TEST(SheetScannerTest, DamageIsReported) {
  const std::string damaged = "its XML is damaged", outside = "it has a cell outside of any sheet";
  const std::string row = "it has a row outside of any sheet", type = xml::kHasDocumentType;
  const std::pair<const char*, std::string> cases[] = {
      {"<w><sheetData><row r=\"1\"><c r=\"A1\"><v>1", damaged},
      {"<w><sheetData><row r='1'><c r='A1'><v>1</v", damaged},
      {"<w><sheetData><row r='1'><c r='A1'><f>1</f", damaged},
      {"<w><sheetData><row r='1'><c r='A1'><f", damaged},
      {"<w><sheetData><row r='1'><c r='A1", damaged},
      {"<w><sheetData><row r='1'><c r='A1'/", damaged},
      {"<w><sheetData><row r='1'><c r", damaged},
      {"<w><sheetData><row", damaged},
      {"<w><sheetData>", damaged},
      {"<w><sheetData", damaged},
      {"<w><!-- ", damaged},
      {"<w><sheetData><row r='1'><c r=A1/></row>", damaged},
      {"<w><sheetData><row r='1'><c t='inlineStr'><is><t>x", damaged},
      {"<w><sheetData><row r='1'><c t='inlineStr'><is><t>x</t>", damaged},
      {"<w><sheetData><row r='1048577'/></sheetData></w>", row},
      {"<w><sheetData><row r=\"1048577\"><c r=\"A1\"/></row></sheetData></w>", row},
      {"<w><sheetData><row r='0'/></sheetData></w>", row},
      {"<w><sheetData><row r=\"0\"><c r=\"A1\"/></row></sheetData></w>", row},
      {"<w><sheetData><row r=\"99999999999\"></row></sheetData></w>", row},
      {"<w><sheetData><row r=\"1048576\"></row><row></row></sheetData></w>", row},
      {"<w><sheetData><row r='1'><c r='XFE1'><v>1</v></c></row></sheetData></w>", outside},
      {"<w><sheetData><row r=\"1\"><c r=\"XFE1\"><v>1</v></c></row></sheetData></w>", outside},
      {"<w><sheetData><row r=\"1\"><c r=\"AAAAAAAAAAAAA1\"><v>1</v></c></row></sheetData></w>", outside},
      {"<w><sheetData><row r=\"1\"><c r=\"XFD1\"/><c><v>1</v></c></row></sheetData></w>", outside},
      {"<w><sheetData><row r='1'><c r='XFDA1'><v>1</v></c></row></sheetData></w>", outside},
      {"<!DOCTYPE w><w><sheetData/></w>", type},
      {"<w><sheetData><!DOCTYPE w></sheetData></w>", type}};
  const auto errorOf = [](const std::string& text, std::size_t piece) {
    return test::ErrorTextOf<PackageError>([&] { Scan(text, piece); });
  };
  const std::string blanks(limits::kXmlToken, ' ');
  EXPECT_EQ(errorOf("<w>" + blanks + "<a/><sheetData/></w>", 1 << 20), "it has no element for its cells");
  for (const auto& [text, message] : cases) {
    for (const std::size_t piece : {std::size_t{1} << 20, std::size_t{1}})
      EXPECT_EQ(errorOf(text, piece), message) << text;
  }
}

TEST(CellStoreTest, GapsRunsAndStyles) {
  CellStore store;
  const int rows[] = {3, 4, 7, 12, 13, 100000, 100003};
  for (const int row : rows)
    store.Append(row, 2, PackedValue(static_cast<double>(row)), row < 10 ? 1 : row == 13 ? 0 : 2);
  for (int row = 1; row <= 100010; ++row) {
    const bool there = std::find(std::begin(rows), std::end(rows), row) != std::end(rows);
    const PackedValue value = store.ValueAt(row, 2);
    ASSERT_EQ(value.GetKind() == PackedValue::Kind::kNumber, there) << row;
    if (there) {
      ASSERT_EQ(value.Number(), row);
    }
    ASSERT_EQ(store.StyleAt(row, 2), !there || row == 13 ? 0u : row < 10 ? 1u : 2u) << row;
  }
  // This row is out of order. Rows outside the short gaps are skipped.
  store.Append(50, 2, PackedValue(50.0), 0);
  std::vector<int> walked;
  for (int row = 0; (row = store.NextRow(row, 2)) != 0;) walked.push_back(row);
  EXPECT_EQ(walked, (std::vector{3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 50, 100000, 100001, 100002, 100003}));
  EXPECT_EQ(store.NextRow(0, 1), 0);
  EXPECT_EQ(store.NextRow(0, 99), 0);
  EXPECT_EQ(store.ValueAt(5, 99).GetKind(), PackedValue::Kind::kEmpty);
}

TEST(SharedStringsTest, RichTextsEscapesAndOddItems) {
  const std::string text =
      "<sst count='9'><si><t>plain &amp; simple</t></si><si/><si><r><t>ri</t></r><r>"
      "<t xml:space='preserve'>ch </t></r><rPh sb='0'><t>no</t></rPh><phoneticPr/></si><si><t/></si>"
      "<si><t>_x0041__x005F_x0041__xD834__xDD1E_</t></si><si><t><![CDATA[<x>]]>\r\ny</t></si></sst>";
  for (const std::size_t piece : {std::size_t{4096}, std::size_t{1}}) {
    MemoryStream stream(text, piece);
    TextPool strings;
    ReadSharedStrings(stream, strings);
    ASSERT_EQ(strings.Count(), 6u);
    EXPECT_EQ(strings.At(0), "plain & simple");
    EXPECT_EQ(strings.At(1), "");
    EXPECT_EQ(strings.At(2), "rich ");
    EXPECT_EQ(strings.At(3), "");
    EXPECT_EQ(strings.At(4), "A_x0041_\xF0\x9D\x84\x9E");
    EXPECT_EQ(strings.At(5), "<x>\ny");
    EXPECT_EQ(strings.At(6), "") << "an index out of range";
  }
}

}  // namespace
}  // namespace plotsmith::xlsx

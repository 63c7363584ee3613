#include <gtest/gtest.h>
#include <string>

#include "tests/support/ErrorOf.h"
#include "xlsx/sheet/Styles.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;

const S kStart = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?><styleSheet>";

S Part(const S& content) { return kStart + content + "</styleSheet>"; }

/// Returns the content of the styles part as it is saved.
S Content(const Styles& styles) {
  const S text = styles.Serialize();
  EXPECT_TRUE(text.starts_with(kStart)) << text;
  return text.substr(kStart.size(), text.size() - kStart.size() - S("</styleSheet>").size());
}

TEST(StylesTest, AFormatIsAddedAtItsPlaceOnce) {
  const S xf = "<xf numFmtId=\"0\" fontId=\"3\"><alignment/></xf>";
  const struct {
    S before;
    std::uint32_t base;
    const char* code;
    std::uint32_t style;
    S after;  ///< The content as it is saved; empty if it doesn't change.
  } cases[] = {
      // Formats that the base has already.
      {"<cellXfs count=\"1\">" + xf + "</cellXfs>", 0, "General", 0, ""},
      {"<cellXfs count=\"1\">" + xf + "</cellXfs>", 0, "gENERAL", 0, ""},
      {"<cellXfs count=\"1\">" + xf + "</cellXfs>", 0, "", 0, ""},
      {"<cellXfs count=\"1\">" + xf + "</cellXfs>", 7, "General", 7, ""},
      {"<cellXfs count=\"1\"><xf numFmtId=\"2\"/></cellXfs>", 0, "0.00", 0, ""},
      // Built-in formats, unless the workbook uses their number for another one.
      {"<fonts/><cellXfs count=\"1\">" + xf + "</cellXfs><dxfs/>", 0, "0.00", 1,
       "<fonts/><cellXfs count=\"2\">" + xf +
           "<xf numFmtId=\"2\" fontId=\"3\" applyNumberFormat=\"1\"><alignment/></xf></cellXfs><dxfs/>"},
      {"<cellXfs count=\"1\">" + xf + "</cellXfs>", 0, "0", 1,
       "<cellXfs count=\"2\">" + xf +
           "<xf numFmtId=\"1\" fontId=\"3\" applyNumberFormat=\"1\"><alignment/></xf></cellXfs>"},
      {"<cellXfs count=\"1\">" + xf + "</cellXfs>", 0, "@", 1,
       "<cellXfs count=\"2\">" + xf +
           "<xf numFmtId=\"49\" fontId=\"3\" applyNumberFormat=\"1\"><alignment/></xf></cellXfs>"},
      {"<numFmts count=\"1\"><numFmt numFmtId=\"2\" formatCode=\"0.0\"/></numFmts><cellXfs><xf/></cellXfs>",
       0, "0.00", 1,
       "<numFmts count=\"2\"><numFmt numFmtId=\"2\" formatCode=\"0.0\"/><numFmt numFmtId=\"164\" "
       "formatCode=\"0.00\"/>"
       "</numFmts><cellXfs count=\"2\"><xf/><xf numFmtId=\"164\" applyNumberFormat=\"1\"/></cellXfs>"},
      // The workbook's own formats, of which the first with the code is used, and free numbers.
      {"<numFmts count=\"2\"><numFmt numFmtId=\"166\" formatCode=\"0.0\"/><numFmt numFmtId=\"165\" "
       "formatCode=\"0.0\"/></numFmts><cellXfs><xf/></cellXfs>",
       0, "0.0", 1,
       "<numFmts count=\"2\"><numFmt numFmtId=\"166\" formatCode=\"0.0\"/><numFmt numFmtId=\"165\" "
       "formatCode=\"0.0\"/>"
       "</numFmts><cellXfs count=\"2\"><xf/><xf numFmtId=\"165\" applyNumberFormat=\"1\"/></cellXfs>"},
      {"<numFmts><numFmt numFmtId=\"164\" formatCode=\"0.0\"/><numFmt numFmtId=\"165\" formatCode=\"0.000\"/>"
       "</numFmts><cellXfs><xf/><xf numFmtId=\"165\"/></cellXfs>",
       1, "0.0000", 2,
       "<numFmts count=\"3\"><numFmt numFmtId=\"164\" formatCode=\"0.0\"/><numFmt numFmtId=\"165\" "
       "formatCode=\"0.000\"/><numFmt numFmtId=\"166\" formatCode=\"0.0000\"/></numFmts><cellXfs count=\"3\">"
       "<xf/><xf numFmtId=\"165\"/><xf numFmtId=\"166\" applyNumberFormat=\"1\"/></cellXfs>"},
      // Parts without these lists, and cells with a style that doesn't exist.
      {"<fonts/><cellStyleXfs/><cellStyles/>", 0, "0.0", 1,
       "<numFmts count=\"1\"><numFmt numFmtId=\"164\" formatCode=\"0.0\"/></numFmts><fonts/><cellStyleXfs/>"
       "<cellXfs count=\"2\"><xf numFmtId=\"0\"/><xf numFmtId=\"164\" "
       "applyNumberFormat=\"1\"/></cellXfs><cellStyles/>"},
      {"<fills/><borders/><tableStyles/><colors/><extLst/>", 3, "0.00", 1,
       "<fills/><borders/><cellXfs count=\"2\"><xf numFmtId=\"0\"/><xf numFmtId=\"2\" "
       "applyNumberFormat=\"1\"/></cellXfs><tableStyles/><colors/><extLst/>"},
      {"<cellXfs count=\"1\">" + xf + "</cellXfs>", 1, "0.00", 1,
       "<cellXfs count=\"2\">" + xf + "<xf numFmtId=\"2\" applyNumberFormat=\"1\"/></cellXfs>"}};
  for (const auto& c : cases) {
    Styles styles(Part(c.before));
    EXPECT_EQ(styles.WithFormat(c.base, c.code), c.style) << c.before;
    EXPECT_EQ(styles.WithFormat(c.base, c.code), c.style) << c.before;
    EXPECT_EQ(styles.Changed(), !c.after.empty()) << c.before;
    EXPECT_EQ(Content(styles), c.after.empty() ? c.before : c.after);
    if (!c.after.empty()) {
      EXPECT_EQ(styles.FormatCode(c.style), c.code);
    }
    Styles reopened(styles.Serialize());
    EXPECT_EQ(reopened.FormatCode(c.style), styles.FormatCode(c.style));
    EXPECT_EQ(reopened.WithFormat(c.style, styles.FormatCode(c.style)), c.style) << c.before;
    EXPECT_FALSE(reopened.Changed());
  }
}

TEST(StylesTest, ANewPartHasOneStyleInTheVocabularyOfTheWorkbook) {
  for (const bool strict : {false, true}) {
    Styles styles("", strict);
    EXPECT_EQ(styles.FormatCode(0), "General");
    EXPECT_EQ(styles.NormalFontName(), "Calibri");
    EXPECT_EQ(styles.NormalFontSize(), 11);
    EXPECT_EQ(styles.NormalFontScheme(), "");
    EXPECT_EQ(S(styles.FillOf(0).child("patternFill").attribute("patternType").value()), "none");
    EXPECT_TRUE(styles.BorderOf(0).child("diagonal"));
    EXPECT_FALSE(styles.AlignmentOf(0));
    EXPECT_EQ(styles.WithFormat(0, "0.0"), 1u);
    const S text = styles.Serialize();
    EXPECT_EQ(text.find("purl.oclc.org/ooxml/spreadsheetml/main") != S::npos, strict) << text;
    EXPECT_EQ(text.find("schemas.openxmlformats.org/spreadsheetml/2006/main") == S::npos, strict) << text;
    EXPECT_NE(
        text.find(
            "<cellXfs count=\"2\"><xf numFmtId=\"0\" fontId=\"0\" fillId=\"0\" borderId=\"0\" xfId=\"0\"/>"
            "<xf numFmtId=\"164\" fontId=\"0\" fillId=\"0\" borderId=\"0\" xfId=\"0\" "
            "applyNumberFormat=\"1\"/>"
            "</cellXfs><cellStyles count=\"1\"><cellStyle name=\"Normal\" xfId=\"0\" builtinId=\"0\"/>"),
        S::npos)
        << text;
  }
}

TEST(StylesTest, EachStyleHasItsFormat) {
  // Cells count what a program that knows no extension would read.
  const Styles styles(
      Part("<numFmts><numFmt numFmtId=\"200\" formatCode=\"d/m\"/><numFmt numFmtId=\"201\" formatCode=\"[\"/>"
           "</numFmts><cellXfs><mc:AlternateContent xmlns:mc=\"m\"><mc:Choice><xf numFmtId=\"9\"/>"
           "<xf/></mc:Choice><mc:Fallback><xf numFmtId=\"1\"/></mc:Fallback></mc:AlternateContent>"
           "<mc:AlternateContent xmlns:mc=\"m\"><mc:Choice><xf numFmtId=\"200\"/>"
           "</mc:Choice></mc:AlternateContent><other/><xf numFmtId=\"14\"/><xf numFmtId=\"999\"/>"
           "<xf numFmtId=\"-3\"/><xf numFmtId=\"9999999999999\"/><xf numFmtId=\"201\"/></cellXfs>"));
  const struct {
    const char* code;
    bool general, date;
  } expected[] = {{"0", false, false},      {"d/m", false, true},     {"m/d/yyyy", false, true},
                  {"General", true, false}, {"General", true, false}, {"General", true, false},
                  {"[", true, false},       {"General", true, false}, {"General", true, false}};
  for (std::uint32_t style = 0; const auto& e : expected) {
    EXPECT_EQ(styles.FormatCode(style), e.code) << style;
    EXPECT_EQ(styles.IsGeneral(style), e.general) << style;
    EXPECT_EQ(styles.IsDate(style), e.date) << style;
    EXPECT_EQ(styles.Format(style).IsDate(), e.date) << style;
    ++style;
  }
}

TEST(StylesTest, ThePaletteIsWrittenAsAWholeBehindTheOtherLists) {
  const auto entry = [](const S& rgb) { return "<rgbColor rgb=\"" + rgb + "\"/>"; };
  S all;
  for (const char* rgb :
       {"000000", "FFFFFF", "FF0000", "00FF00", "0000FF", "FFFF00", "FF00FF", "00FFFF", "000000", "FFFFFF",
        "FF0000", "00FF00", "0000FF", "FFFF00", "FF00FF", "00FFFF", "800000", "008000", "000080", "808000",
        "800080", "008080", "C0C0C0", "808080", "9999FF", "993366", "FFFFCC", "CCFFFF", "660066", "FF8080",
        "0066CC", "CCCCFF", "000080", "FF00FF", "FFFF00", "00FFFF", "800080", "800000", "008080", "0000FF",
        "00CCFF", "CCFFFF", "CCFFCC", "FFFF99", "99CCFF", "FF99CC", "CC99FF", "FFCC99", "3366FF", "33CCCC",
        "99CC00", "FFCC00", "FF9900", "FF6600", "666699", "969696", "003366", "339966", "003300", "333300",
        "993300", "993366", "333399", "333333"})
    all += entry(S("FF") + rgb);
  const auto with = [&](const char* before, const char* after) {
    S changed = all;
    const auto at = changed.rfind(entry(before));
    return changed.replace(at, entry(before).size(), entry(after));
  };
  const struct {
    S before;
    std::int32_t index, color;
    S after;
  } cases[] = {
      {"<cellXfs/><extLst/>", 56, 0x030201,
       "<cellXfs/><colors><indexedColors>" + with("FF333333", "FF010203") +
           "</indexedColors></colors><extLst/>"},
      {"<colors><mruColors/></colors>", 10, 0xFFEEDD,
       "<colors><indexedColors>" + with("FF008000", "FFDDEEFF") + "</indexedColors><mruColors/></colors>"},
      {"<colors><indexedColors>" + all + "</indexedColors></colors>", 56, 0,
       "<colors><indexedColors>" + with("FF333333", "FF000000") + "</indexedColors></colors>"},
      // A palette that ends early is filled up.
      {"<colors><indexedColors>" + all.substr(0, 9 * entry("FF000000").size()) + "</indexedColors></colors>",
       1, 0xFF,
       "<colors><indexedColors>" +
           S(all).replace(8 * entry("FF000000").size(), entry("FF000000").size(), entry("FFFF0000")) +
           "</indexedColors></colors>"},
  };
  for (const auto& c : cases) {
    Styles styles(Part(c.before));
    styles.SetPaletteColor(c.index, c.color);
    EXPECT_TRUE(styles.Changed());
    EXPECT_EQ(Content(styles), c.after);
    const Styles reopened(styles.Serialize());
    for (std::int32_t index = 1; index <= 56; ++index) {
      EXPECT_EQ(reopened.PaletteColor(index), index == c.index ? c.color : DefaultPaletteColor(index))
          << index;
    }
  }
  Styles styles(Part("<colors><indexedColors>" + all.substr(0, 8 * entry("FF000000").size()) +
                     "<rgbColor rgb=\"?\"/></indexedColors></colors>"));
  EXPECT_EQ(styles.PaletteColor(1), 0);
  for (const std::int32_t index : {0, 57}) {
    EXPECT_EQ(test::ErrorOf([&] { styles.PaletteColor(index); }), runtime::error::kSubscript);
    EXPECT_EQ(test::ErrorOf([&] { styles.SetPaletteColor(index, 0); }), runtime::error::kSubscript);
  }
  EXPECT_FALSE(styles.Changed());
}

TEST(StylesTest, TheLooksOfAStyleAreFoundByTheirNumbers) {
  const Styles styles(
      Part("<fonts><font i=\"0\"/><font i=\"1\"/></fonts><fills><fill i=\"0\"/><fill i=\"1\"/>"
           "</fills><borders><border i=\"0\"/><border i=\"1\"/></borders><cellXfs><xf/>"
           "<xf fontId=\"1\" fillId=\"1\" borderId=\"1\"><alignment i=\"1\"/></xf>"
           "<xf fontId=\"2\" fillId=\"-1\" borderId=\"x\"/></cellXfs>"));
  const auto looks = [&](std::uint32_t style) {
    S text;
    for (const pugi::xml_node& node :
         {styles.FontOf(style), styles.FillOf(style), styles.BorderOf(style), styles.AlignmentOf(style)})
      text += node ? node.attribute("i").value() : "-";
    return text;
  };
  EXPECT_EQ(looks(0), "000-");
  EXPECT_EQ(looks(1), "1111");
  EXPECT_EQ(looks(2), "--0-");
  EXPECT_EQ(looks(3), "000-");
  const Styles plain(
      Part("<fonts><font><name val=\"A\"/></font><font><name "
           "val=\"B\"/></font></fonts><cellStyleXfs><xf/></cellStyleXfs>"));
  EXPECT_EQ(plain.NormalFontName(), "A");
}

}  // namespace
}  // namespace plotsmith::xlsx

#include <gtest/gtest.h>

#include "xlsx/CellContents.h"
#include "xlsx/drawing/Theme.h"
#include "xlsx/sheet/Styles.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;
using Kind = excel::CellValue::Kind;

/// Excel's colour from red, green and blue.
constexpr std::int32_t Rgb(std::int32_t rgb) { return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16; }

TEST(CellLookTest, BordersHaveWidthAndColor) {
  const Styles styles(
      "<styleSheet><borders><border/><border><start style=\"thin\"><color rgb=\"FFFF0000\"/></start>"
      "<right style=\"none\"/><top style=\"thick\"/><bottom style=\"mediumDashed\"><color auto=\"1\"/>"
      "</bottom></border></borders><cellXfs><xf/><xf borderId=\"1\"/></cellXfs></styleSheet>");
  const CellLook look = LookOf(styles, Theme(""), 1);
  EXPECT_EQ(look.left, (BorderLine{1, Rgb(0xFF0000)}));
  EXPECT_EQ(look.top, (BorderLine{3, std::nullopt}));
  EXPECT_EQ(look.right, BorderLine());
  EXPECT_EQ(look.bottom, (BorderLine{2, std::nullopt}));
}

TEST(CellLookTest, FontFillAndAlignmentComeFromTheStyle) {
  const struct {
    const char *font, *fill;
    const char* style;  ///< Attributes and contents of xf.
    CellLook look;
  } cases[] = {
      {"<sz val=\"11\"/><name val=\"Calibri\"/>",
       "<patternFill patternType=\"none\"/>",
       "/>",
       {.font = "Calibri", .size = 11}},
      {"<b/><i val=\"1\"/><u/><strike/><sz val=\"20\"/><color rgb=\"FF123456\"/><name val=\"Arial\"/>",
       "<patternFill patternType=\"solid\"><fgColor rgb=\"FFFFEE00\"/><bgColor "
       "indexed=\"64\"/></patternFill>",
       "><alignment horizontal=\"center\" vertical=\"top\" wrapText=\"1\" indent=\"2\"/></xf>",
       {HorizontalAlignment::kCenter, VerticalAlignment::kTop, 2, true, true, true, true, true, "Arial", 20,
        Rgb(0x123456), Rgb(0xFFEE00)}},
      // off again, and out of any range
      {"<b val=\"0\"/><u val=\"none\"/><sz val=\"9999\"/><name val=\"Arial\"/><color auto=\"1\"/>",
       "<patternFill patternType=\"solid\"><fgColor indexed=\"64\"/></patternFill>",
       "><alignment horizontal=\"right\" vertical=\"center\" indent=\"-3\"/></xf>",
       {.horizontal = HorizontalAlignment::kRight,
        .vertical = VerticalAlignment::kCenter,
        .font = "Arial",
        .size = 409}},
      // The theme's first accent, and its dark text colour, lightened by half.
      {"<name val=\"Arial\"/><sz val=\"8\"/><color theme=\"4\"/>",
       "<patternFill patternType=\"solid\"><fgColor theme=\"1\" tint=\"0.5\"/></patternFill>",
       "/>",
       {.font = "Arial", .size = 8, .textColor = Rgb(0x4F81BD), .fillColor = Rgb(0x7F7F7F)}},
      {"<name val=\"Arial\"/><sz val=\"8\"/><color rgb=\"FF808080\" tint=\"-0.5\"/>",
       "<patternFill patternType=\"solid\"><fgColor indexed=\"10\"/></patternFill>",
       "/>",
       {.font = "Arial", .size = 8, .textColor = Rgb(0x404040), .fillColor = Rgb(0xFF0000)}},
      // one colour for a pattern and for a gradient
      {"<name val=\"Arial\"/><sz val=\"8\"/>",
       "<patternFill patternType=\"gray125\"><fgColor rgb=\"FF000000\"/><bgColor "
       "rgb=\"FF00FF00\"/></patternFill>",
       "/>",
       {.font = "Arial", .size = 8, .fillColor = Rgb(0x00FF00)}},
      {"<name val=\"Arial\"/><sz val=\"8\"/>",
       "<gradientFill><stop position=\"0\"><color rgb=\"FF0000FF\"/></stop><stop "
       "position=\"1\"/></gradientFill>",
       "/>",
       {.font = "Arial", .size = 8, .fillColor = Rgb(0x0000FF)}},
  };
  const Theme theme("");
  for (const auto& c : cases) {
    const Styles styles("<styleSheet><fonts><font><name val=\"X\"/></font><font>" + S(c.font) +
                        "</font></fonts><fills><fill/><fill>" + c.fill +
                        "</fill></fills><cellXfs><xf/><xf fontId=\"1\" fillId=\"1\"" + c.style +
                        "</cellXfs></styleSheet>");
    const CellLook look = LookOf(styles, theme, 1);
    EXPECT_EQ(look, c.look) << c.font << c.fill << c.style << "\ntext " << look.textColor.value_or(-1)
                            << " fill " << look.fillColor.value_or(-1);
    EXPECT_EQ(LookOf(styles, theme, 7).font, "X");  // This style doesn't exist.
  }
}

TEST(CellContentsTest, NumbersThatDontFitLoseDecimalsOrAreMarks) {
  const struct {
    double number;
    const char* text;
    bool general;
    double width;
    const char* fitted;
  } cases[] = {
      {1.5, "1.5", true, 3, "1.5"},
      {2.0 / 3, "0.666666667", true, 5, "0.667"},
      {-0.123456, "-0.123456", true, 6, "-0.123"},
      {1234.56, "1234.56", true, 4, "1235"},
      {1234.56, "1234.56", true, 3, "###"},
      {1234.56, "1,234.56", false, 5, "#####"},
      {1e20, "1E+20", true, 4, "####"},
      {1.5e20, "1.5E+20", true, 4, "####"},
      {7, "7", true, 0.5, "#"},
  };
  const auto countedWidth = [](std::string_view text) { return static_cast<double>(text.size()); };
  for (const auto& c : cases) {
    const CellContents cell{
        .kind = Kind::kNumber, .number = c.number, .general = c.general, .style = 0, .text = c.text};
    EXPECT_EQ(FittedNumber(cell, c.width, countedWidth), c.fitted) << c.text;
  }
}

TEST(CellContentsTest, TheKindAndTheLookDecideWhereATextIs) {
  using Horizontal = HorizontalAlignment;
  const struct {
    Kind kind;
    Horizontal horizontal;
    bool wrap;
    TextSide side;
    bool spreads;
  } cases[] = {
      {Kind::kText, Horizontal::kGeneral, false, TextSide::kLeft, true},
      {Kind::kText, Horizontal::kGeneral, true, TextSide::kLeft, false},
      {Kind::kText, Horizontal::kRight, false, TextSide::kRight, true},
      {Kind::kText, Horizontal::kCenter, false, TextSide::kMiddle, true},
      {Kind::kText, Horizontal::kCenterAcross, false, TextSide::kMiddle, true},
      {Kind::kText, Horizontal::kFill, false, TextSide::kLeft, false},
      {Kind::kNumber, Horizontal::kGeneral, false, TextSide::kRight, false},
      {Kind::kNumber, Horizontal::kLeft, false, TextSide::kLeft, false},
      {Kind::kDate, Horizontal::kGeneral, false, TextSide::kRight, false},
      {Kind::kBoolean, Horizontal::kGeneral, false, TextSide::kMiddle, false},
      {Kind::kError, Horizontal::kGeneral, false, TextSide::kMiddle, false},
  };
  for (const auto& c : cases) {
    const auto row = &c - cases;
    CellContents cell;
    cell.kind = c.kind;
    CellLook look;
    look.horizontal = c.horizontal;
    look.wrap = c.wrap;
    EXPECT_EQ(SideOf(cell, look), c.side) << row;
    EXPECT_EQ(MaySpread(cell, look), c.spreads) << row;
  }
}

}  // namespace
}  // namespace plotsmith::xlsx

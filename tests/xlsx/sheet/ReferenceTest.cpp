#include <gtest/gtest.h>

#include "xlsx/sheet/RowShifts.h"

namespace plotsmith::xlsx {
namespace {

TEST(ReferenceTest, ParsesBothStyles) {
  const struct {
    const char *text, *sheet;
    CellRange range;
  } cases[] = {
      {"Sheet1!$A$1", "Sheet1", {1, 1, 1, 1}},
      {"Sheet1!A1:B2", "Sheet1", {1, 1, 2, 2}},
      {"Sheet1!b2:A1", "Sheet1", {1, 1, 2, 2}},
      {"'It''s here'!$XFD$1048576", "It's here", {1048576, 16384, 1048576, 16384}},
      {"'a!b'!A1", "a!b", {1, 1, 1, 1}},
      {"VEX_ChartData!R6C2:R17C2", "VEX_ChartData", {6, 2, 17, 2}},
      {"S!R1C1", "S", {1, 1, 1, 1}},
      {"S!R1", "S", {1, 18, 1, 18}},
      {"S!r1048576c16384:R2c3", "S", {2, 3, 1048576, 16384}},
      {"S!$AZ$26:za2", "S", {2, 52, 26, 677}},
      {"S!A:C", "S", {1, 1, 1048576, 3}},
      {"S!$2:$3", "S", {2, 1, 3, 16384}},
  };
  for (const auto& c : cases) {
    const auto parsed = ParseSheetRange(c.text);
    ASSERT_TRUE(parsed) << c.text;
    EXPECT_EQ(parsed->sheet, c.sheet) << c.text;
    EXPECT_EQ(parsed->range, c.range) << c.text;
  }
  for (const char* text : {"", "A1", "!A1", "'Sheet1!A1"}) EXPECT_FALSE(ParseSheetRange(text)) << text;
  for (const std::string cells : {"",
                                  "A0",
                                  "XFE1",
                                  "A1048577",
                                  "A1:",
                                  "R0C1",
                                  "R1C0",
                                  "R1_1",
                                  "X1C1",
                                  "R1C",
                                  "RC",
                                  "A99999999999",
                                  "AAAA1",
                                  "$",
                                  "A$",
                                  "$A$1$",
                                  "A1:2",
                                  "A:2",
                                  "#REF!",
                                  "A1,Sheet1!B2",
                                  "OFFSET(A1,1,1)",
                                  "$A",
                                  "1",
                                  "R1C1:",
                                  "R1C1:R2",
                                  "RC1:R2C2",
                                  "R1C99999999999999",
                                  "R1C1x",
                                  "R1048577C1",
                                  "R1C16385"})
    EXPECT_FALSE(ParseSheetRange("Sheet1!" + cells)) << cells;
}

TEST(ReferenceTest, SheetNamesAreQuotedWhereTheyMustBe) {
  const std::pair<const char*, const char*> cases[] = {
      {"Sheet1", "Sheet1"}, {"My Sheet", "'My Sheet'"},
      {"It's", "'It''s'"},  {"A1", "'A1'"},
      {"R1C1", "'R1C1'"},   {"2020", "'2020'"},
      {"2a", "'2a'"},       {"x9_y", "x9_y"},
      {".a", "'.a'"},       {"VEX_ChartData", "VEX_ChartData"},
      {"a-b", "'a-b'"},     {"Größe", "Größe"},
      {"XFE1", "XFE1"},     {"R", "'R'"},
      {"rc12", "'rc12'"},   {"c", "'c'"},
      {"C5", "'C5'"},       {"cr", "cr"},
      {"R1C1x", "R1C1x"},   {"a.b", "a.b"},
      {"R1C", "'R1C'"},     {"Rc_1", "Rc_1"},
      {"Q1–Q2", "'Q1–Q2'"}, {"", "''"}};
  for (const auto& [name, quoted] : cases) EXPECT_EQ(QuotedSheetName(name), quoted);
  EXPECT_EQ(SheetRangeAddress({"My Sheet", {1, 27, 3, 27}}), "'My Sheet'!$AA$1:$AA$3");
  EXPECT_EQ(RangeAddress({7, 702, 7, 702}), "$ZZ$7");
  EXPECT_EQ(CellAddress(7, 703), "AAA7");
  EXPECT_EQ(CellAddress(1, 52), "AZ1");
  EXPECT_EQ(RangeAddress(*ParseA1("3:4")), "$3:$4");
  EXPECT_EQ(RangeAddress(*ParseA1("B:AA")), "$B:$AA");
  EXPECT_EQ(RangeAddress(*ParseA1("A:XFD")), "$1:$1048576");
}

TEST(ReferenceTest, FormulasFollowRows) {
  const struct {
    const char* formula;
    int row, count;
    bool home;
    const char* shifted;  ///< The adjusted formula; null if it doesn't change.
  } cases[] = {
      // Rows inserted before, inside, at the last row, after.
      {"Data!$A$5:$A$9", 3, 2, false, "Data!$A$7:$A$11"},
      {"Data!$A$5:$A$9", 5, 1, false, "Data!$A$6:$A$10"},
      {"Data!$A$5:$A$9", 9, 3, false, "Data!$A$5:$A$12"},
      {"Data!$A$5:$A$9", 10, 3, false, nullptr},
      // Rows deleted before, at the start, inside, at the end, all of them.
      {"Data!$A$5:$A$9", 1, -2, false, "Data!$A$3:$A$7"},
      {"Data!$A$5:$A$9", 4, -3, false, "Data!$A$4:$A$6"},
      {"Data!$A$5:$A$9", 6, -1, false, "Data!$A$5:$A$8"},
      {"Data!$A$5:$A$9", 9, -5, false, "Data!$A$5:$A$8"},
      {"Data!$A$5:$A$9", 5, -5, false, "Data!#REF!"},
      {"Data!$A$5", 5, -1, false, "Data!#REF!"},
      // Sheet names: case, quotes, other sheets, the formula's own sheet.
      {"DATA!A5+'data'!B5", 1, 1, false, "DATA!A6+'data'!B6"},
      {"Other!A5+A5", 1, 1, false, nullptr},
      {"Other!A5+A5", 1, 1, true, "Other!A5+A6"},
      {"SUM(Data!A1:B2,C$3,$D4)", 2, 1, true, "SUM(Data!A1:B3,C$4,$D5)"},
      {"'It''s'!A5+Data!A5", 1, 1, false, "'It''s'!A5+Data!A6"},
      {"[1]Data!A5+'[2]Data'!A5", 1, 1, false, nullptr},
      {"Data:Last!A5+'Data:Last'!A5", 1, 1, false, nullptr},
      {"First:Data!A5+'First:Data'!A5", 1, 1, false, nullptr},
      // Texts that look like references.
      {"\"Data!A5\"&LOG10(A5)&Data!A5_x", 1, 1, false, nullptr},
      {"LOG10(5)+A5", 1, 1, true, "LOG10(5)+A6"},
      {"Table1[[#All],[A5]]+A5", 1, 1, true, "Table1[[#All],[A5]]+A6"},
      {"1.5E5+A1.B5+TRUE", 1, 1, true, nullptr},
      // Whole rows move, whole columns don't, and corners can be in any order.
      {"Data!5:9+Data!A:C", 5, 1, false, "Data!6:10+Data!A:C"},
      {"Data!A9:A5", 6, 1, false, "Data!A10:A5"},
      {"Data!A1048576", 1, 1, false, "Data!#REF!"},
      {"Data!A1:A1048576", 5, 1, false, nullptr},
      {"Data!A1:A1048576", 1, 1, false, nullptr},
      {"Data!A1:A1048576", 5, -2, false, nullptr},
      {"Data!A2:A1048576", 5, -2, false, "Data!A2:A1048574"},
      {"Data!A5:A8:A9+A9", 1, 1, false, "Data!A6:A9:A10+A9"},
      {"Data!A5:Other!B6", 1, 1, false, "Data!A6:Other!B6"},
      {"Other!A5:A6+A5:Data!A5", 1, 1, false, "Other!A5:A6+A5:Data!A6"},
      {"Data!A5#+@A5", 1, 1, true, "Data!A6#+@A6"},
      // Quotes and brackets inside of columns' names, texts and books that have no end.
      {"Table1['[a']A5]+A5", 1, 1, true, "Table1['[a']A5]+A6"},
      {"Table1[[a]:[A5]]+A5", 1, 1, true, "Table1[[a]:[A5]]+A6"},
      {"[1]!A5+A5", 1, 1, true, "[1]!A5+A6"},
      {"[2]Data!A5:A6+A5", 1, 1, true, "[2]Data!A5:A6+A6"},
      {"'[A5'!A5&[A5+A5", 1, 1, true, nullptr},
      {"A5&\"A5&A5", 1, 1, true, "A6&\"A5&A5"},
      {"A5&\"\"\"A5\"&A5", 1, 1, true, "A6&\"\"\"A5\"&A6"},
      {"Data!A5+Data:Last:A5+A5", 1, 1, true, "Data!A6+Data:Last:A6+A6"},
      {"Other!name+A5", 1, 1, true, "Other!name+A6"},
      {"Other!A5:B6:A5", 1, 1, true, nullptr},
      {"(Other!A5,A5):A5", 1, 1, true, "(Other!A5,A6):A6"},
      {"$A$5:$B$6 $A5", 1, 1, true, "$A$6:$B$7 $A6"},
      {"a5+A05+$A$1:b$4", 3, 1, true, "A6+A6+$A$1:B$5"},
      // The rows of a range that aren't deleted, and rows that leave the sheet.
      {"A3:A8", 3, -3, true, "A3:A5"},
      {"A3:A8", 1, -4, true, "A1:A4"},
      {"A3:A8", 8, -1, true, "A3:A7"},
      {"A3:A8", 7, -9, true, "A3:A6"},
      {"A3:A1048570", 3, 10, true, "A13:A1048576"},
      {"A1048570", 3, 6, true, "A1048576"},
      {"A1048570:A1048571", 3, 7, true, "#REF!"},
      // No sheet has such a long name, and the second corner has no sheet of its own.
      {"DataDataDataDataDataDataDataData!A5:A9:B9+Data!A5", 5, 1, true,
       "DataDataDataDataDataDataDataData!A5:A9:B9+Data!A6"},
      {"(Data!$B$6:$B$7,Data!$B$9)", 7, 2, false, "(Data!$B$6:$B$9,Data!$B$11)"},
  };
  for (const auto& c : cases) {
    RowShifts shifts;
    shifts.Add("Data", c.row, c.count);
    const auto shifted = shifts.Follow(c.formula, c.home ? "Data" : "", 0);
    EXPECT_EQ(shifted.value_or("(same)"), c.shifted == nullptr ? "(same)" : c.shifted)
        << c.formula << " row " << c.row << " count " << c.count;
  }
}

TEST(RowShiftsTest, EachObjectFollowsTheShiftsSinceItsMark) {
  RowShifts shifts;
  for (int i = 0; i < 3; ++i) shifts.Add("Data", 5, 1);
  EXPECT_EQ(shifts.Follow("Data!$A$5", "", 0), "Data!$A$8");
  const auto mark = shifts.Mark();
  shifts.Add("Data", 5, 1);  // The position is the same, but the earlier shift was already applied.
  EXPECT_EQ(shifts.Follow("Data!$A$8", "", mark), "Data!$A$9");
  EXPECT_EQ(shifts.Follow("Data!$A$5", "", 0), "Data!$A$9");
  EXPECT_FALSE(shifts.Follow("Data!$A$9", "", shifts.Mark()));
  // Shifts apply one after the other, each only to its sheet. Deleted references stay deleted.
  shifts.Add("Other", 1, 4);
  shifts.Add("Data", 1, -3);
  EXPECT_EQ(shifts.Follow("Data!$A$5+Other!$A$5", "", 0), "Data!$A$6+Other!$A$9");
  shifts.Add("Data", 6, -1);
  shifts.Add("Data", 1, 9);
  EXPECT_EQ(shifts.Follow("Data!$A$5+A5", "data", 0), "Data!#REF!+#REF!");
}

TEST(RowShiftsTest, ChangesAtOnePlaceBecomeOneUnlessSomethingFollowedThem) {
  const struct {
    std::vector<std::pair<int, int>> changes;  ///< Row and count. A row 0 takes a mark.
    const char* shifted;                       ///< What becomes of A5:A10.
  } cases[] = {{{{5, 1}, {5, 2}}, "A8:A13"},         {{{5, -1}, {5, -2}}, "A5:A7"},
               {{{5, 1}, {5, -1}}, "A5:A10"},        {{{7, -1}, {7, 1}}, "A5:A10"},
               {{{7, -4}, {7, 4}}, "A5:A6"},         {{{7, -4}, {7, 1}}, "A5:A6"},
               {{{5, 3}, {5, -1}}, "A7:A12"},        {{{7, 2}, {6, 2}}, "A5:A14"},
               {{{5, 1}, {0, 0}, {5, 1}}, "A7:A12"}, {{{10, -1}, {0, 0}, {10, 1}}, "A5:A9"}};
  for (const auto& c : cases) {
    RowShifts shifts;
    EXPECT_TRUE(shifts.None());
    std::vector<std::pair<std::size_t, std::string>> followers = {{shifts.Mark(), "A5:A10"}};
    const auto follow = [&](auto& follower) {
      follower.second = shifts.Follow(follower.second, "Data", follower.first).value_or(follower.second);
      follower.first = shifts.Mark();
    };
    for (const auto& [row, count] : c.changes) {
      if (row > 0) {
        shifts.Add("Data", row, count);
      } else {
        // This reference follows in two steps.
        followers.emplace_back(0, "A5:A10");
        follow(followers.back());
      }
    }
    for (auto& follower : followers) {
      EXPECT_TRUE(shifts.AnyAfter(follower.first));
      follow(follower);
      EXPECT_EQ(follower.second, c.shifted);
      EXPECT_FALSE(shifts.AnyAfter(follower.first));
    }
    EXPECT_FALSE(shifts.None());
  }
}

TEST(RowShiftsTest, ATextMayConcernASheetThatItNames) {
  const struct {
    const char *sheet, *text;
    bool may;
  } cases[] = {
      {"Data", "<c:f>data!A1</c:f>", true},
      {"Data", "<c:f>Dat!A1</c:f>", false},
      {"Data", "bata!A1", false},
      {"Data", "", false},
      {"My Data", "'my data'!A1", true},
      {"My Data", "'my  data'!A1", false},
      {"D_1", "d_1!A1", true},
      // Of a name with characters that XML writes in several forms, the longest part without them decides.
      {"a&Sales", "'a&amp;sales'!A1", true},
      {"a&Sales", "'b&amp;sales'!A1", true},
      {"a&Sales", "'a&amp;b'!A1", false},
      {"Sales&b", "'Sales&amp;b'!A1", true},
      {"Sales&b", "b", false},
      {"ab&c&def", "def", true},
      {"ab&c&def", "ab&amp;c", false},
      {"\u00C4&", "x", true},
      {"x\u00C4yz", "\u00E4YZ", true},
  };
  for (const auto& c : cases) {
    RowShifts shifts;
    EXPECT_FALSE(shifts.MayConcern(c.text));
    shifts.Add(c.sheet, 1, 1);
    EXPECT_EQ(shifts.MayConcern(c.text), c.may) << c.sheet << ' ' << c.text;
  }
}

}  // namespace
}  // namespace plotsmith::xlsx

#include <gtest/gtest.h>

#include "xlsx/sheet/Formula.h"
#include "xlsx/sheet/SheetFormulas.h"

namespace plotsmith::xlsx {
namespace {

TEST(SheetFormulasTest, OnlyTheFormulasConcernedChange) {
  RowShifts shifts;
  shifts.Add("My Data", 5, 2);
  const std::pair<const char*, const char*> cases[] = {
      {"<c r='A1'><f>'My Data'!A5&amp;\"'My Data'!A5\"</f><v>1</v></c>",
       "<c r='A1'><f>'My Data'!A7&amp;\"'My Data'!A5\"</f><v>1</v></c>"},
      {"<x:c r='A1'><x:f ca='1'>SUM('my data'!$A$4:$A$6)</x:f></x:c>",
       "<x:c r='A1'><x:f ca='1'>SUM('my data'!$A$4:$A$8)</x:f></x:c>"},
      {"<formula>'My Data'!A5&gt;1</formula><formula1>'My Data'!A5</formula1>",
       "<formula>'My Data'!A7&gt;1</formula><formula1>'My Data'!A7</formula1>"},
      {"<ext><xm:f>'My Data'!A5:B9</xm:f><xm:sqref>A5</xm:sqref></ext>",
       "<ext><xm:f>'My Data'!A7:B11</xm:f><xm:sqref>A5</xm:sqref></ext>"},
      {"<x14:formula1><xm:f>'My Data'!A5:A6</xm:f></x14:formula1><x14:formula2>\n<xm:f>'My Data'!A6</xm:f>"
       "</x14:formula2>",
       "<x14:formula1><xm:f>'My Data'!A7:A8</xm:f></x14:formula1><x14:formula2>\n<xm:f>'My Data'!A8</xm:f>"
       "</x14:formula2>"},
      // A shared formula can't be adjusted as one: each cell gets its own.
      {"<c r='B4'><f t='shared' ref='B4:B6' si='3'>'My Data'!A4*$C$1</f><v>0</v></c><c r='B5'>"
       "<f t='shared' si='3'/></c><c r='B6'><f t='shared' si=\"3\"></f></c><c r='C1'><f t='shared' si='4' "
       "ref='C1'>A5</f></c><c r='C2'><f t='shared' si='4'/></c>",
       "<c r='B4'><f>'My Data'!A4*$C$1</f><v>0</v></c><c r='B5'><f>'My Data'!A7*$C$1</f></c>"
       "<c r='B6'><f>'My Data'!A8*$C$1</f></c><c r='C1'><f t='shared' si='4' ref='C1'>A5</f></c><c r='C2'><f "
       "t='shared' si='4'/></c>"},
      // The cell keeps the other attributes, and the number of a group is used again.
      {"<c r='B4'><f t='shared' ca='1' ref='B4:B5' xml:space='preserve' si='0'> 'My Data'!A5</f></c>"
       "<c r='B5'><f  si='0' t = 'shared' ca='1'/></c>"
       "<c r='D1'><f t='shared' ref='D1:D2' si='0'>B1+1</f></c><c r='D2'><f t='shared' si='0'/></c>",
       "<c r='B4'><f ca='1' xml:space='preserve'> 'My Data'!A7</f></c><c r='B5'><f ca='1'> 'My Data'!A8"
       "</f></c><c r='D1'><f t='shared' ref='D1:D2' si='0'>B1+1</f></c><c r='D2'><f t='shared' si='0'/></c>"},
      // Rows and cells without a reference follow the previous one.
      {"<row r='4'><c/><c><f t='shared' ref='B4:B5' si='0'>'My Data'!A5</f></c></row><row><c/><c>"
       "<f t='shared' si='0'/></c></row>",
       "<row r='4'><c/><c><f>'My Data'!A7</f></c></row><row><c/><c><f>'My Data'!A8</f></c></row>"},
      {"<row><c><f t='shared' ref='A1:B1' si='0'>'My Data'!A5</f></c><c><f t='shared' si='0'/></c></row>"
       "<row r='7'><c r='F7'/><c><f t='shared' si='0'/></c></row><row><c><f t='shared' si='0'/></c></row>"
       "<row r='3'/><c r='D9'/><c><f t='shared' si='0'/></c><row r='20'><c><f t='shared' si='0'/></c></row>",
       "<row><c><f>'My Data'!A7</f></c><c><f>'My Data'!B7</f></c></row>"
       "<row r='7'><c r='F7'/><c><f>'My Data'!G13</f></c></row><row><c><f>'My Data'!A14</f></c></row>"
       "<row r='3'/><c r='D9'/><c><f>'My Data'!E15</f></c><row r='20'><c><f>'My Data'!A26</f></c></row>"},
      // Texts are recognized in every XML form.
      {"<c r='A1'><f a='>'><![CDATA['My Data'!A5]]>&lt;1<!-- so --></f></c>",
       "<c r='A1'><f a='>'>'My Data'!A7&lt;1</f></c>"}};
  for (const auto& [before, after] : cases) {
    std::string part = std::string("<w>\r\n<!-- 'My Data'!A5 -->") + before + "</w>";
    EXPECT_TRUE(ShiftSheetFormulas(part, "Sheet1", shifts)) << before;
    EXPECT_EQ(part, std::string("<w>\r\n<!-- 'My Data'!A5 -->") + after + "</w>");
  }
  // A formula may have 8192 characters, of which those around the reference don't matter.
  const std::string longest = "'My Data'!A5" + std::string(8192 - 12, ' ');
  std::string full = "<c r='A1'><f t='shared' si='0'>" + longest + "</f></c>";
  EXPECT_TRUE(ShiftSheetFormulas(full, "Sheet1", shifts));
  EXPECT_EQ(full, "<c r='A1'><f>'My Data'!A7" + std::string(8192 - 12, ' ') + "</f></c>");
  const std::string unchanged[] = {// longer than any formula may be
                                   "<c><f t='shared' si='0'>'My Data'!A5" + std::string(8192, ' ') +
                                       "</f></c><c><f t='shared' si='0'/></c>",
                                   "<c r='A1'><f>A5+Other!A5</f></c>",
                                   "<c r='A1'><f>'My Data'!A4</f></c>",
                                   "<c t='str'><v>'My Data'!A5</v></c>",
                                   "<f",
                                   "<f>"};
  for (const std::string& same : unchanged) {
    std::string part = same;
    EXPECT_FALSE(ShiftSheetFormulas(part, "Sheet1", shifts)) << same;
    EXPECT_EQ(part, same);
  }
}

TEST(FormulaTest, CopiedFormulasMoveTheirRelativeReferences) {
  const std::pair<const char*, const char*> cases[] = {{"A1+$A1+A$1+$A$1", "C4+$A4+C$1+$A$1"},
                                                       {"SUM(A1:B2)*Other!A1", "SUM(C4:D5)*Other!C4"},
                                                       {"\"A1\"&LOG10(A1)", "\"A1\"&LOG10(C4)"},
                                                       {"1:1+A:A", "4:4+C:C"},
                                                       {"XFD1", "#REF!"},
                                                       {"XFB1048573", "XFD1048576"},
                                                       {"A1048576", "#REF!"}};
  for (const auto& [formula, moved] : cases) EXPECT_EQ(OffsetFormula(formula, 3, 2), moved);
  EXPECT_EQ(OffsetFormula("B2+A2", -1, -1), "A1+#REF!");
}

}  // namespace
}  // namespace plotsmith::xlsx

#include <gtest/gtest.h>

#include "xlsx/package/MemoryStream.h"
#include "xlsx/sheet/PageSetup.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;

constexpr double kMillimeter = 72 / 25.4;

TEST(PageSetupTest, ReadsThePrintSettings) {
  const struct {
    const char* before;  ///< The elements before the cells.
    const char* after;
    PageSetup setup;
  } cases[] = {
      {"", "", {}},
      {"",
       "<printOptions horizontalCentered=\"1\" verticalCentered=\"true\" gridLines=\"1\" headings=\"1\"/>"
       "<pageMargins left=\"1\" right=\"0.5\" top=\"0\" bottom=\"2\" header=\"0.3\" footer=\"0.3\"/>"
       "<pageSetup paperSize=\"9\" scale=\"50\" orientation=\"landscape\" pageOrder=\"overThenDown\"/>",
       {.paperWidth = 297 * kMillimeter,
        .paperHeight = 210 * kMillimeter,
        .left = 72,
        .right = 36,
        .top = 0,
        .bottom = 144,
        .scale = 0.5,
        .overThenDown = true,
        .centersAcross = true,
        .centersDown = true,
        .gridLines = true,
        .headings = true}},
      {"<sheetPr><pageSetUpPr fitToPage=\"1\"/></sheetPr>",
       "<x:pageSetup fitToWidth=\"2\" fitToHeight=\"0\"/><x:headerFooter><x:oddFooter>&amp;P</x:oddFooter>"
       "</x:headerFooter>",
       {.fits = true, .fitWidth = 2, .fitHeight = 0, .hasHeaderOrFooter = true}},
      {"",
       "<rowBreaks><brk id=\"40\" man=\"1\"/><brk id=\"20\"/><brk id=\"40\"/><brk id=\"0\"/></rowBreaks>"
       "<colBreaks><brk id=\"5\"/><brk id=\"16384\"/></colBreaks><headerFooter/><conditionalFormatting/>",
       {.rowBreaks = {20, 40}, .columnBreaks = {5}, .hasConditionalFormats = true}},
      // Values out of range, and unknown papers.
      {"",
       "<pageMargins left=\"-1\" right=\"nan\"/><pageSetup paperSize=\"77\" scale=\"-3\" fitToWidth=\"-1\" "
       "fitToHeight=\"9999999\"/>",
       {.left = 0, .fitWidth = 0, .fitHeight = 32767}},
      // The setup of a custom view.
      {"",
       "<customSheetViews><customSheetView><pageSetup scale=\"50\"/></customSheetView></customSheetViews>",
       {}},
  };
  for (const auto& c : cases) {
    const S bytes = "<worksheet>" + S(c.before) + "<sheetData><row r=\"1\"><c r=\"A1\"/></row></sheetData>" +
                    c.after + "</worksheet>";
    MemoryStream part(bytes);
    EXPECT_EQ(ReadPageSetup(part), c.setup) << c.before << c.after;
  }
}

}  // namespace
}  // namespace plotsmith::xlsx

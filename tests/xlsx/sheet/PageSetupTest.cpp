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

TEST(PageSetupTest, PapersAndTheLimitsOfWhatIsWritten) {
  const auto read = [](const S& elements) {
    const S bytes = "<worksheet><sheetData/>" + elements + "</worksheet>";
    MemoryStream part(bytes);
    return ReadPageSetup(part);
  };
  const struct {
    const char* code;
    double width, height;
  } papers[] = {{"1", 612, 792},
                {"3", 792, 1224},
                {"4", 1224, 792},
                {"5", 612, 1008},
                {"6", 396, 612},
                {"7", 522, 756},
                {"8", 297 * kMillimeter, 420 * kMillimeter},
                {"9", 210 * kMillimeter, 297 * kMillimeter},
                {"11", 148 * kMillimeter, 210 * kMillimeter},
                {"12", 250 * kMillimeter, 353 * kMillimeter},
                {"13", 176 * kMillimeter, 250 * kMillimeter},
                {"70", 105 * kMillimeter, 148 * kMillimeter},
                {"2", 612, 792},
                {"", 612, 792}};
  for (const auto& paper : papers) {
    for (const bool landscape : {false, true}) {
      const PageSetup setup = read("<pageSetup paperSize=\"" + S(paper.code) + "\" orientation=\"" +
                                   (landscape ? "landscape" : "portrait") + "\"/>");
      EXPECT_EQ(landscape ? setup.paperHeight : setup.paperWidth, paper.width) << paper.code;
      EXPECT_EQ(landscape ? setup.paperWidth : setup.paperHeight, paper.height) << paper.code;
    }
  }
  const std::pair<const char*, double> scales[] = {{"10", 0.1}, {"9", 0.1}, {"400", 4},
                                                   {"401", 4},  {"0", 1},   {"x", 1}};
  for (const auto& [scale, read_] : scales)
    EXPECT_EQ(read("<pageSetup scale=\"" + S(scale) + "\"/>").scale, read_);
  EXPECT_EQ(read("<pageMargins left=\"50\" right=\"49\"/>"), (PageSetup{.left = 3528, .right = 3528}));
  EXPECT_EQ(read("<brk id=\"3\"/><rowBreaks><brk id=\"1\"/><brk id=\"1048575\"/><brk id=\"1048576\"/>"
                 "<brk/></rowBreaks><colBreaks><brk id=\"16383\"/><brk id=\"1\"/></colBreaks>"),
            (PageSetup{.rowBreaks = {1, 1048575}, .columnBreaks = {1, 16383}}));
  S breaks;
  for (int row = 1; row <= 2000; ++row) breaks += "<brk id=\"" + std::to_string(row) + "\"/>";
  EXPECT_EQ(read("<rowBreaks>" + breaks + "</rowBreaks>").rowBreaks.size(), 1026u) << "Excel's limit";
}

}  // namespace
}  // namespace plotsmith::xlsx

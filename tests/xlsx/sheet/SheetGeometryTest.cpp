#include <gtest/gtest.h>
#include <string>

#include "xlsx/sheet/SheetGeometry.h"
#include "xlsx/sheet/Styles.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;

Styles WithFont(const S& name, const S& size) {
  return Styles("<styleSheet><fonts><font><sz val=\"" + size + "\"/><name val=\"" + name +
                "\"/></font></fonts></styleSheet>");
}

TEST(SheetGeometryTest, ADigitIsAsWideAsItsFontHasIt) {
  const struct {
    const char *font, *size;
    int width;
  } cases[] = {{"Calibri", "11", 7},
               {"calibri", "10", 6},
               {"Calibri", "12", 8},
               {"Arial", "10", 7},
               {"Arial", "11", 8},
               {"Aptos Narrow", "11", 7},
               {"Cambria", "11", 7},
               {"Times New Roman", "10", 6},
               {"Verdana", "10", 8},
               // Other fonts and sizes: 0.48 of the height.
               {"Calibri", "20", 13},
               {"Ubuntu", "10", 6},
               {"Ubuntu", "36", 23},
               {"Ubuntu", "0", 1},
               {"Ubuntu", "-5", 1},
               {"Ubuntu", "9999", 262}};
  for (const auto& c : cases) EXPECT_EQ(DigitWidth(WithFont(c.font, c.size)), c.width) << c.font << c.size;
}

// In Calibri 11, a digit has 7 pixels and a pixel has 0.75 points.
const std::vector<double> kUsualColumns(5, 48), kUsualRows(5, 15);

TEST(SheetGeometryTest, SizesComeFromTheHeadAndFromSingleRows) {
  const struct {
    const char* head;
    std::vector<double> columnSizes = kUsualColumns, rowSizes = kUsualRows;  ///< Of the first five.
    std::vector<std::pair<std::int32_t, double>> rows = {};
  } cases[] = {
      {"<w>"},
      {"<w><sheetFormatPr baseColWidth='10'/>", {60, 60, 60, 60, 60}},
      {"<w><sheetFormatPr baseColWidth='10' defaultColWidth='10.7109375' defaultRowHeight='20'/>",
       {56.25, 56.25, 56.25, 56.25, 56.25},
       {30, 30, 20, 30, 0},
       {{1, 30}, {2, 30}, {4, 30}, {5, 0}}},
      {"<w><sheetFormatPr defaultRowHeight='20' zeroHeight='1'/>",
       kUsualColumns,
       {9.5, 0, 0, 0, 0},
       {{1, 9.5}}},
      {"<w><cols><col min='4' max='4' width='0'/><col min='1' max='1' width='20.7109375'/>"
       "<col min='2' max='3' width='9' hidden='1'/></cols>",
       {108.75, 0, 0, 0, 48}},
      // A column without a width has the default one, also if the default comes later.
      {"<w><cols><col min='2' max='2'/></cols><sheetFormatPr defaultColWidth='1'/>",
       {5.25, 5.25, 5.25, 5.25, 5.25}},
      // Ranges that overlap or lie outside, sizes beyond Excel's limits.
      {"<w><cols><col min='2' max='3' width='1'/><col min='3' max='5' width='9'/><col min='0' max='1' "
       "width='9'/><col min='5' max='16385' width='9'/><col max='9' width='3'/><col min='5' width='3'/>"
       "<col min='5' max='4' width='3'/></cols>",
       {48, 5.25, 5.25, 48, 48},
       {15, 409.5, 0, 15, 15},
       {{2, 1000}, {1, 50}, {3, -2}}},
      {"<w><sheetFormatPr defaultRowHeight='1000'/><cols><col min='1' max='16384' width='300'/></cols>",
       {1338.75, 1338.75, 1338.75, 1338.75, 1338.75},
       {409.5, 409.5, 409.5, 409.5, 409.5}},
  };
  const Styles styles = WithFont("Calibri", "11");
  for (const auto& c : cases) {
    const SheetGeometry geometry = ReadGeometry(c.head, c.rows, styles);
    for (std::int32_t i = 0; i < 5; ++i) {
      EXPECT_EQ(geometry.columns.SizeOf(i), c.columnSizes[static_cast<std::size_t>(i)])
          << c.head << " column " << i;
      EXPECT_EQ(geometry.rows.SizeOf(i), c.rowSizes[static_cast<std::size_t>(i)]) << c.head << " row " << i;
    }
  }
}

TEST(SheetGeometryTest, EdgesAndIndicesAgree) {
  // Ten lines of 10 points, of which three have 4, one is hidden and two at the end have 20.
  GridLines lines(10, 10);
  lines.SetSize(1, 1, 4);
  lines.SetSize(2, 3, 4);
  lines.SetSize(5, 5, 0);
  lines.SetSize(4, 4, 99);  // Not in order.
  lines.SetSize(5, 6, 99);  // The first is set already.
  lines.SetSize(8, 20, 20);
  const double edges[] = {0, 10, 14, 18, 22, 32, 32, 42, 52, 72, 92};
  for (std::int32_t i = 0; i <= 10; ++i) EXPECT_EQ(lines.EdgeOf(i), edges[i]) << i;
  for (std::int32_t i = 0; i < 10; ++i) EXPECT_EQ(lines.SizeOf(i), edges[i + 1] - edges[i]) << i;
  const struct {
    double points;
    std::pair<std::int32_t, double> place;
  } cases[] = {{-5, {0, 0}},  {0, {0, 0}},  {9.5, {0, 9.5}}, {10, {1, 0}},  {13, {1, 3}},
               {14, {2, 0}},  {18, {3, 0}}, {21, {3, 3}},    {22, {4, 0}},  {31, {4, 9}},
               {32, {6, 0}},  {41, {6, 9}}, {42, {7, 0}},    {51, {7, 9}},  {52, {8, 0}},
               {71, {8, 19}}, {72, {9, 0}}, {91, {9, 19}},   {92, {9, 20}}, {9999, {9, 20}}};
  for (const auto& c : cases) EXPECT_EQ(lines.IndexAt(c.points), c.place) << c.points;

  GridLines plain(10, 10), hidden(0, 10), shown(0, 10);
  EXPECT_EQ(plain.IndexAt(99), (std::pair{9, 9.0}));
  EXPECT_EQ(plain.IndexAt(100), (std::pair{9, 10.0}));
  EXPECT_EQ(hidden.IndexAt(5), (std::pair{9, 0.0}));
  shown.SetSize(2, 4, 10);
  EXPECT_EQ(shown.IndexAt(25), (std::pair{4, 5.0}));
  EXPECT_EQ(shown.IndexAt(30), (std::pair{9, 0.0}));
  EXPECT_EQ(shown.EdgeOf(9), 30);
  EXPECT_EQ(GridLines(0.5, 10).IndexAt(2.25), (std::pair{4, 0.25}));
  plain.SetSize(-1, 3, 5);
  plain.SetSize(3, 2, 5);
  plain.SetSize(10, 12, 5);
  EXPECT_EQ(plain.EdgeOf(10), 100);
}

}  // namespace
}  // namespace plotsmith::xlsx

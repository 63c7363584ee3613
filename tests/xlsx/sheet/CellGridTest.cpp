#include <gtest/gtest.h>
#include <random>

#include "tests/support/ErrorOf.h"
#include "xlsx/base/Limits.h"
#include "xlsx/sheet/CellGrid.h"

namespace plotsmith::xlsx {
namespace {

TEST(CellGridTest, RowsKeepTheirOrderAfterInsertionsAndDeletions) {
  CellGrid grid;
  std::vector<double> expected;  // The first cell of each row, or 0.
  std::mt19937 random(7);
  for (int step = 1; step <= 3000; ++step) {
    const auto row = 1 + static_cast<std::int32_t>(random() % (expected.size() + 3));
    const auto index = static_cast<std::size_t>(row) - 1;
    switch (random() % 4) {
      case 0:
        grid.InsertRow(row);
        if (index < expected.size()) expected.insert(expected.begin() + row - 1, 0);
        break;
      case 1:
        grid.DeleteRow(row);
        if (index < expected.size()) expected.erase(expected.begin() + row - 1);
        break;
      default:
        grid.At(row, 1) = {excel::CellValue::Kind::kNumber, static_cast<double>(step), "", 0};
        if (index >= expected.size()) expected.resize(index + 1);
        expected[index] = step;
    }
    ASSERT_EQ(grid.RowCount(), static_cast<std::int32_t>(expected.size())) << step;
  }
  ASSERT_GT(expected.size(), 100u);
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const GridCell* cell = grid.Find(static_cast<std::int32_t>(i) + 1, 1);
    ASSERT_EQ(cell == nullptr ? 0 : cell->number, expected[i]) << i;
  }
}

TEST(CellGridTest, TheCellsAreWrittenWithInlineTexts) {
  using Kind = excel::CellValue::Kind;
  CellGrid grid;
  EXPECT_EQ(grid.SheetData("x:"), "<x:sheetData></x:sheetData>");
  EXPECT_FALSE(grid.Used());
  grid.At(9, 5);  // Blank cells aren't written.
  EXPECT_FALSE(grid.Used());
  grid.At(2, 2) = {Kind::kNumber, -1.5, "", 0};
  grid.At(2, 4) = {Kind::kDate, 45000, "", 12};
  grid.At(3, 1) = {Kind::kBoolean, 1, "", 3};
  grid.At(3, 2) = {Kind::kBoolean, 0, "", 0};
  grid.At(3, 3) = {Kind::kError, 2042, "#N/A", 0};
  grid.At(7, 2) = {Kind::kText, 0, " a<\r", 4};
  grid.At(7, 3) = {Kind::kEmpty, 0, "", 5};
  for (const std::string prefix : {"", "x:"}) {
    const std::string open = "<" + prefix, close = "</" + prefix;
    const std::string text =
        open + "is>" + open + "t xml:space=\"preserve\"> a&lt;_x000D_" + close + "t>" + close + "is>";
    const auto value = [&](const std::string& v) {
      return ">" + open + "v>" + v + close + "v>" + close + "c>";
    };
    EXPECT_EQ(grid.SheetData(prefix),
              open + "sheetData>" + open + "row r=\"2\">" + open + "c r=\"B2\"" + value("-1.5") + open +
                  "c r=\"D2\" s=\"12\"" + value("45000") + close + "row>" + open + "row r=\"3\">" + open +
                  "c r=\"A3\" s=\"3\" t=\"b\"" + value("1") + open + "c r=\"B3\" t=\"b\"" + value("0") +
                  open + "c r=\"C3\" t=\"e\"" + value("#N/A") + close + "row>" + open + "row r=\"7\">" +
                  open + "c r=\"B7\" s=\"4\" t=\"inlineStr\">" + text + close + "c>" + open +
                  "c r=\"C7\" s=\"5\"/>" + close + "row>" + close + "sheetData>");
  }
  EXPECT_EQ(grid.Used(), (CellRange{2, 1, 7, 4}));
  EXPECT_EQ(grid.Find(2, 5), nullptr);
  EXPECT_EQ(grid.Find(10, 1), nullptr);
  EXPECT_EQ(grid.Find(0, 1), nullptr);
  EXPECT_EQ(grid.Find(2, 0), nullptr);
  EXPECT_EQ(grid.Find(9, 5)->kind, Kind::kEmpty);
}

TEST(CellGridTest, ASheetHasALimitOfCellsAndRows) {
  CellGrid grid;
  grid.At(limits::kRows, 1) = {excel::CellValue::Kind::kNumber, 1, "", 0};
  EXPECT_EQ(test::ErrorOf([&] { grid.InsertRow(1); }), runtime::error::kApplication);
  grid.InsertRow(limits::kRows + 1);
  grid.DeleteRow(limits::kRows + 1);
  EXPECT_EQ(grid.RowCount(), limits::kRows);
  grid.DeleteRow(1);
  grid.InsertRow(limits::kRows - 1);
  EXPECT_EQ(grid.RowCount(), limits::kRows);
  EXPECT_EQ(grid.Find(limits::kRows, 1)->number, 1);
  EXPECT_EQ(test::ErrorOf([] { CellGrid::CheckSize(limits::kGridCells); }), 0);
  EXPECT_EQ(test::ErrorOf([] { CellGrid::CheckSize(limits::kGridCells + 1); }), runtime::error::kApplication);
}

}  // namespace
}  // namespace plotsmith::xlsx

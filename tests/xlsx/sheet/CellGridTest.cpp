#include <gtest/gtest.h>
#include <random>

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

}  // namespace
}  // namespace plotsmith::xlsx

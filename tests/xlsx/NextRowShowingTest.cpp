#include <string>
#include <vector>

#include "tests/support/HostTest.h"
#include "xlsx/Workbook.h"

namespace plotsmith {
namespace {

using test::HostTest;

/// Returns the rows of column A that a search for the text visits, up to the first row that shows nothing.
std::string Walk(excel::Worksheet& sheet, const std::string& text) {
  std::string rows, scratch;
  for (std::int32_t row = 1;; row = sheet.NextRowShowing(row, 1, text)) {
    rows += std::to_string(row) + ' ';
    if (sheet.CellTextAt(row, 1, scratch).empty()) return rows;
  }
}

TEST_F(HostTest, ASearchForATextSkipsRowsWithOtherTexts) {
  test::PlainBook book;
  book.sheets.push_back({.name = "Cells"});
  const auto sheet = Open(book).Worksheets()->Item("Cells");
  EXPECT_EQ(Walk(*sheet, "a"), "1 ") << "before the sheet is written";
  const std::vector<runtime::Variant> values = {"b", "b", "a", "a", "b", 7, "ab", "A", "a", "b"};
  for (std::size_t i = 0; i < values.size(); ++i)
    sheet->SetCellValueAt(static_cast<std::int32_t>(i) + 1, 1, values[i]);
  // The search begins at row 1, and visits all cells that aren't plain texts.
  EXPECT_EQ(Walk(*sheet, "a"), "1 3 4 6 9 11 ");
  EXPECT_EQ(Walk(*sheet, "none"), "1 6 11 ");
  sheet->Rows(4)->Insert();
  EXPECT_EQ(Walk(*sheet, "a"), "1 3 4 ") << "the new row is blank";
  sheet->Rows(4)->Delete(excel::xlShiftUp);
  sheet->Rows(1)->Delete(excel::xlShiftUp);
  EXPECT_EQ(Walk(*sheet, "a"), "1 2 3 5 8 10 ");
  sheet->Cells(4, 1)->SetNumberFormat("\"x\"@");
  EXPECT_EQ(Walk(*sheet, "a"), "1 2 3 4 5 8 10 ") << "its displayed text isn't its text";
  sheet->SetCellValueAt(6, 1, "a");
  sheet->SetCellValueAt(3, 1, "c");
  EXPECT_EQ(Walk(*sheet, "a"), "1 2 4 5 6 8 10 ") << "values that were written between two searches";
  sheet->Cells(5, 1)->Clear();
  EXPECT_EQ(Walk(*sheet, "a"), "1 2 4 5 ");
  EXPECT_THROW(sheet->NextRowShowing(0, 1, "a"), runtime::RuntimeError);
}

}  // namespace
}  // namespace plotsmith

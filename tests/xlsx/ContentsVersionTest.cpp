#include <functional>
#include <set>
#include <utility>

#include "tests/support/HostTest.h"
#include "xlsx/Workbook.h"

namespace plotsmith {
namespace {

using test::HostTest;

TEST_F(HostTest, EachChangeOfCellsGivesTheSheetAVersionThatNoSheetHadBefore) {
  test::PlainBook book;
  book.sheets.push_back({.name = "Cells"});
  book.sheets.push_back({.name = "Other"});
  const auto sheets = Open(book).Worksheets();
  const auto sheet = sheets->Item("Cells");
  std::set<std::uint64_t> versions = {sheet->ContentsVersion(), sheets->Item("Other")->ContentsVersion()};
  EXPECT_EQ(versions.size(), 2u);
  EXPECT_FALSE(versions.contains(0)) << "this host can tell";

  const std::pair<const char*, std::function<void()>> changes[] = {
      {"a value", [&] { sheet->SetCellValueAt(1, 1, std::string("b")); }},
      {"a value in a range", [&] { sheet->Cells(2, 1)->SetValue(std::string("a")); }},
      {"a format", [&] { sheet->Cells(2, 1)->SetNumberFormat("0.0"); }},
      {"a new row", [&] { sheet->Rows(1)->Insert(); }},
      {"a deleted row", [&] { sheet->Rows(1)->Delete(excel::xlShiftUp); }},
      {"sorted rows",
       [&] {
         sheet->Range("A1", "A2")
             ->Sort(sheet->Cells(1, 1), excel::xlAscending, excel::xlNo, 1, false, excel::xlTopToBottom);
       }},
      {"a cleared cell", [&] { sheet->Cells(1, 1)->Clear(); }},
      {"a value on the other sheet", [&] { sheets->Item("Other")->SetCellValueAt(1, 1, 1); }}};
  for (const auto& [what, change] : changes) {
    const std::uint64_t before = sheet->ContentsVersion(), other = sheets->Item("Other")->ContentsVersion();
    change();
    const std::uint64_t after = sheet->ContentsVersion(),
                        otherAfter = sheets->Item("Other")->ContentsVersion();
    EXPECT_EQ((before != after) + (other != otherAfter), 1) << what;
    EXPECT_TRUE(versions.insert(before != after ? after : otherAfter).second) << what;
  }

  const std::uint64_t last = sheet->ContentsVersion();
  std::string scratch;
  sheet->CellTextAt(1, 1, scratch);
  sheet->NextRowShowing(1, 1, "a");
  EXPECT_EQ(sheet->UsedRange()->Address(), "$A$2");
  EXPECT_EQ(sheet->ContentsVersion(), last) << "reading changes nothing";
}

}  // namespace
}  // namespace plotsmith

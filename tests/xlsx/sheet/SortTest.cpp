#include <functional>

#include "runtime/Strings.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/HostTest.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;

class SortTest : public test::HostTest {
 protected:
  /// Sorts a column that contains `values`. The column beside it numbers the rows.
  S Sorted(const std::vector<test::PlainCell>& values, bool descending, bool matchCase) {
    test::PlainBook book;
    book.sheets = {{"Data", {}}};
    double number = 0;
    for (const auto& value : values) book.sheets[0].rows.push_back({value, ++number});
    Open(book);
    const auto sheet = Book().FindWorksheet("Data");
    const auto last = static_cast<std::int32_t>(values.size());
    sheet->Range("$A$1", sheet->Cells(last, 2)->Address())
        ->Sort(sheet->Cells(1, 1), descending ? 2 : 1, 2, 1, matchCase, 1);
    SaveAndReopen();
    S order = Cells("Data", 1, 2, last, 2);
    return runtime::Replace(order, "\n", " ");
  }
};

TEST_F(SortTest, ValuesAreInExcelsOrder) {
  using test::RawCell;
  const RawCell yes{" t=\"b\"><v>1</v></c>"}, no{" t=\"b\"><v>0</v></c>"};
  const RawCell error{" t=\"e\"><v>#N/A</v></c>"}, other{" t=\"e\"><v>#DIV/0!</v></c>"};
  const std::monostate none;
  const struct {
    const char* what;
    std::vector<test::PlainCell> values;
    S ascending, descending;
    bool matchCase = false;
  } cases[] = {
      {"numbers", {3.0, -1.0, 2.5, 3.0}, "2 3 1 4", "1 4 3 2"},
      {"kinds", {none, error, yes, S("a"), 5.0, no, S("5"), other}, "5 7 4 6 3 2 8 1", "2 8 3 6 4 7 5 1"},
      {"empty ones last in either direction", {none, 1.0, none, 2.0}, "2 4 1 3", "4 2 1 3"},
      {"texts that differ only in case keep their order",
       {S("b"), S("A"), S("a"), S("B")},
       "2 3 1 4",
       "1 4 2 3"},
      {"by case: lower case comes first", {S("b"), S("A"), S("a"), S("B")}, "3 2 1 4", "4 1 2 3", true},
      {"digits, signs, letters",
       {S("a"), S("_x"), S("1"), S(" x"), S("~"), S("+")},
       "3 4 2 5 6 1",
       "1 6 5 2 4 3"},
      {"the shorter one first", {S("ab"), S("a"), S("abc")}, "2 1 3", "3 1 2"},
      {"hyphens and apostrophes count last",
       {S("co-op"), S("coop"), S("cooa"), S("o'b"), S("oa")},
       "3 2 1 5 4",
       "4 5 1 2 3"},
      {"accents too", {S("\u00C4z"), S("az"), S("b"), S("\u00E4a")}, "4 2 1 3", "3 1 2 4"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ(Sorted(c.values, false, c.matchCase), c.ascending);
    EXPECT_EQ(Sorted(c.values, true, c.matchCase), c.descending);
  }
}

TEST_F(SortTest, RowsMoveWithTheirFormatsInsideTheRange) {
  test::PlainBook book = test::SalesBook({});
  book.sheets[0].rows[0].push_back(S("beside"));
  Open(book);
  const auto sheet = Book().FindWorksheet("Data1");
  sheet->Range("$C$2", "$C$2")->SetNumberFormat("0.00");
  sheet->Range("$A$1", "$D$6")->Sort(sheet->Cells(2, 3), 2, 1, 1, false, 1);
  SaveAndReopen();
  EXPECT_EQ(Cells("Data1", 1, 1, 6, 5),
            "Region|Product|Amount|Cost|beside\nEast|Widget|10.00|7.5|\nEast|Gadget|7|5|\nWest|Widget|5|4|\n"
            "east|Widget|1|0.5|\n||||");
  EXPECT_EQ(journal_[1], "Sheets(\"Data1\").Range(\"$A$1:$D$6\").Sort(\"$C$2\", 2, 1, 1, False, 1)");
}

TEST_F(SortTest, UnsupportedSortsAreError1004) {
  test::PlainBook book = test::SalesBook({});
  const auto expectError = [&](const std::function<void(Worksheet&)>& call) {
    Open(book);
    EXPECT_EQ(test::ErrorOf([&] { call(*Book().FindWorksheet("Data1")); }), 1004);
    EXPECT_EQ(Cells("Data1", 2, 1, 3, 1), "East\nWest");
  };
  const auto sort = [](Worksheet& sheet, std::int32_t column, std::int32_t order, std::int32_t header,
                       std::int32_t custom, std::int32_t orientation) {
    sheet.Range("$A$1", "$C$5")->Sort(sheet.Cells(2, column), order, header, custom, false, orientation);
  };
  expectError([&](auto& sheet) { sort(sheet, 4, 1, 1, 1, 1); });
  expectError([&](auto& sheet) { sort(sheet, 1, 3, 1, 1, 1); });
  expectError([&](auto& sheet) { sort(sheet, 1, 1, 0, 1, 1); });
  expectError([&](auto& sheet) { sort(sheet, 1, 1, 1, 2, 1); });
  expectError([&](auto& sheet) { sort(sheet, 1, 1, 1, 1, 2); });
  book.Sheet("Data1").afterData = "<mergeCells count=\"1\"><mergeCell ref=\"A8:B8\"/></mergeCells>";
  expectError([&](auto& sheet) { sort(sheet, 1, 2, 1, 1, 1); });
  book.Sheet("Data1").afterData.clear();
  book.Sheet("Data1").rows.push_back({test::RawCell{"><f>1+1</f><v>2</v></c>"}});
  expectError([&](auto& sheet) { sort(sheet, 1, 2, 1, 1, 1); });
}

}  // namespace
}  // namespace plotsmith::xlsx

#include <gtest/gtest.h>

#include "tests/support/ErrorOf.h"
#include "tests/support/HostTest.h"
#include "xlsx/Worksheet.h"
#include "xlsx/package/MemoryStream.h"
#include "xlsx/sheet/SheetView.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;

S ViewText(const SheetView& view) {
  const auto cell = [](const CellPlace& place) {
    return " " + std::to_string(place.row) + "," + std::to_string(place.column);
  };
  return S(view.gridLines ? "lines " : "") + (view.headings ? "heads" : "") +
         (view.selected ? " selected" : "") + cell(view.topLeft) + cell(view.activeCell) +
         cell({view.frozenRows, view.frozenColumns});
}

TEST(SheetViewTest, ReadsTheViewOfTheFirstWindow) {
  const struct {
    const char* views;
    SheetView view;
  } cases[] = {
      {"", {}},
      {"<sheetViews><sheetView workbookViewId=\"0\"/></sheetViews>", {}},
      {"<sheetViews><sheetView showGridLines=\"0\" showRowColHeaders=\"false\" "
       "topLeftCell=\"C9\"/></sheetViews>",
       {false, false, {9, 3}, {1, 1}, 0, 0}},
      {"<sheetViews><sheetView tabSelected=\"1\"/><sheetView tabSelected=\"0\"/></sheetViews>",
       {true, true, {1, 1}, {1, 1}, 0, 0, true}},
      {"<sheetViews><sheetView tabSelected=\"false\"/><sheetView tabSelected=\"1\"/></sheetViews>", {}},
      {"<x:sheetViews><x:sheetView><x:selection activeCell=\"B7\" "
       "sqref=\"A1:B7\"/></x:sheetView></x:sheetViews>",
       {true, true, {1, 1}, {7, 2}, 0, 0}},
      {"<sheetViews><sheetView><pane xSplit=\"2\" ySplit=\"1\" topLeftCell=\"F90\" "
       "activePane=\"bottomRight\" state=\"frozen\"/><selection pane=\"topRight\" activeCell=\"D1\"/>"
       "<selection pane=\"bottomRight\" activeCell=\"G95\"/></sheetView></sheetViews>",
       {true, true, {90, 6}, {95, 7}, 1, 2}},
      // A split that isn't frozen is in points, and positions outside the sheet are ignored.
      {"<sheetViews><sheetView><pane xSplit=\"2000\" ySplit=\"300\"/></sheetView></sheetViews>", {}},
      {"<sheetViews><sheetView topLeftCell=\"?\"><pane ySplit=\"-4\" xSplit=\"99999\" state=\"frozen\"/>"
       "</sheetView></sheetViews>",
       {true, true, {1, 1}, {1, 1}, 0, 16383}},
      {"<sheetViews><sheetView><pane ySplit=\"9999999\" state=\"frozenSplit\" activePane=\"\"/><selection "
       "activeCell=\"C3\"/></sheetView></sheetViews>",
       {true, true, {1, 1}, {3, 3}, 1048575, 0}},
      // Panes and selections outside of the first view.
      {"<pane ySplit=\"2\" state=\"frozen\"/><selection activeCell=\"D4\"/><sheetViews>"
       "<sheetView></sheetView><selection activeCell=\"C3\"/></sheetViews>",
       {}},
      {"<sheetViews><sheetView><selection pane=\"bottomLeft\" activeCell=\"C3\"/><selection pane=\"topLeft\" "
       "activeCell=\"B2\"/></sheetView></sheetViews>",
       {true, true, {1, 1}, {2, 2}, 0, 0}},
      // The second view belongs to another window.
      {"<sheetViews><sheetView/><sheetView showGridLines=\"0\" topLeftCell=\"C9\"/></sheetViews>", {}},
  };
  for (const auto& c : cases) {
    const S part =
        "<worksheet>" + S(c.views) + "<sheetData><selection activeCell=\"Z9\"/></sheetData></worksheet>";
    MemoryStream stream(part);
    EXPECT_EQ(ViewText(ReadSheetView(stream)), ViewText(c.view)) << c.views;
  }
}

TEST(SheetViewTest, TheCellsAreNotRead) {
  const S part = "<worksheet><sheetData><row";
  MemoryStream stream(part);
  EXPECT_EQ(ViewText(ReadSheetView(stream)), ViewText({}));
}

class LookedAtTest : public test::HostTest {};

TEST_F(LookedAtTest, TheViewFollowsTheWindowAndTheActiveCell) {
  Open(test::SalesBook({}));
  const auto sheet = Book().FindWorksheet("Data1");
  const auto calls = host_->Journal().CallCount(), activations = Book().Tabs().Activations();
  EXPECT_EQ(sheet->View(), SheetView());
  EXPECT_EQ(host_->Journal().CallCount(), calls);

  host_->ActiveWindow()->SetDisplayGridlines(false);
  EXPECT_EQ(Book().Tabs().Activations(), activations);
  sheet->Cells(4, 2)->Activate();
  EXPECT_EQ(sheet->View(), (SheetView{false, true, {1, 1}, {4, 2}, 0, 0}));
  EXPECT_EQ(host_->Journal().CallCount(), calls + 2);
  EXPECT_EQ(Book().Tabs().Activations(), activations + 1);
  Book().FindWorksheet("Charts")->Activate();
  EXPECT_EQ(Book().Tabs().Activations(), activations + 2);
}

TEST_F(LookedAtTest, MergedCellsAreReadAtTheirPositionInTheSchema) {
  const struct {
    const char* behindCells;
    std::vector<CellRange> merged;
  } cases[] = {
      {"", {}},
      {"<mergeCells count=\"2\"><mergeCell ref=\"A8:B8\"/><mergeCell ref=\"D1:D3\"></mergeCell></mergeCells>",
       {{8, 1, 8, 2}, {1, 4, 3, 4}}},
      {"<sheetProtection/><autoFilter ref=\"A1:D5\"><filterColumn colId=\"0\"><mergeCell ref=\"A1:B1\"/>"
       "</filterColumn></autoFilter><mergeCells><mergeCell ref=\"C2:D2\"/><mergeCell "
       "ref=\"?\"/></mergeCells>",
       {{2, 3, 2, 4}}},
      {"<pageMargins/><mergeCells><mergeCell ref=\"C2:D2\"/></mergeCells>", {}},
  };
  for (const auto& c : cases) {
    auto book = test::SalesBook({});
    book.Sheet("Data1").afterData = c.behindCells;
    Open(book);
    EXPECT_EQ(Book().FindWorksheet("Data1")->MergedCells(), c.merged) << c.behindCells;
  }
}

TEST_F(LookedAtTest, ViewingDoesNotDamageTheWorkbook) {
  auto book = test::SalesBook({});
  book.Sheet("Charts").beforeData = "<!DOCTYPE a>";
  Open(book);
  const auto read = [&] { Book().FindWorksheet("Charts")->UsedCells(); };
  EXPECT_EQ(test::ErrorOf([&] { Book().Viewed(read); }), runtime::error::kApplication);
  EXPECT_FALSE(Book().Damage());
  EXPECT_EQ(test::ErrorOf(read), runtime::error::kApplication);
  EXPECT_TRUE(Book().Damage());
}

}  // namespace
}  // namespace plotsmith::xlsx

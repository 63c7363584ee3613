#include <QtWidgets/QApplication>
#include <filesystem>

#include "host/excel/Constants.h"
#include "host/excel/Sheets.h"
#include "host/excel/Window.h"
#include "tests/qt/book/BookTest.h"
#include "tests/support/ErrorOf.h"
#include "tests/support/Paths.h"
#include "xlsx/Worksheet.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::qtbook {
namespace {

using S = std::string;

/// Returns a workbook with visible, hidden and very hidden sheets, and a chart VEX_Chart1 far down on Charts.
test::PlainBook BookOfSheets() {
  test::PlainBook book = test::SalesBook({test::Definition{}});
  book.Sheet("Charts").frames[0].row = 400;
  book.sheets.push_back({.name = "Notes & more", .state = "hidden"});
  book.sheets.push_back({.name = "Inner", .state = "veryHidden"});
  book.sheets.push_back({.name = "Far"});
  book.workbookExtra = "<bookViews><workbookView activeTab=\"1\"/></bookViews>";
  return book;
}

class BookViewTest : public test::BookTest {
 protected:
  void Activate(const S& sheet) {
    Book().Tabs().Find(sheet)->object->Activate();
    view_->Update();
  }
};

TEST_F(BookViewTest, HiddenSheetsHaveDimmedTabsAndVeryHiddenOnesNone) {
  BookView& view = Show(BookOfSheets());
  EXPECT_EQ(Tabs(), "Data1|[Charts]|Notes && more|Far");
  QTabBar& tabs = view.Tabs();
  EXPECT_FALSE(tabs.tabTextColor(0).isValid());
  EXPECT_TRUE(tabs.tabTextColor(2).isValid());
  EXPECT_NE(tabs.tabTextColor(2), view.palette().color(QPalette::WindowText));
  EXPECT_EQ(tabs.accessibleTabName(2), "Notes & more, hidden");
  EXPECT_EQ(Sheet().accessibleName(), "Sheet Charts");
}

TEST_F(BookViewTest, TabsFollowTheSheets) {
  BookView& view = Show(BookOfSheets());
  view.Tabs().setCurrentIndex(2);  // The user selects another sheet.
  const auto sheets = host_->ActiveWorkbook()->Sheets();
  const auto added = sheets->Add(sheets->Item("Data1"), nullptr);
  EXPECT_EQ(Tabs(), "Data1|Charts|[Notes && more]|Far");
  view.Update();
  EXPECT_EQ(Tabs(), "[Sheet1]|Data1|Charts|Notes && more|Far");
  added->SetName("VEX_New");
  Book().Tabs().Find("Far")->object->SetVisible(excel::xlSheetVeryHidden);
  view.Update();
  EXPECT_EQ(Tabs(), "[VEX_New]|Data1|Charts|Notes && more");
  added->Delete();
  QApplication::processEvents();  // The window may be painted before it is updated.
  view.Update();
  EXPECT_EQ(Tabs(), "[Data1]|Charts|Notes && more");
}

TEST_F(BookViewTest, ShowsAnActivatedSheetAndOtherwiseTheSelectedOne) {
  BookView& view = Show(BookOfSheets());
  view.Tabs().setCurrentIndex(0);
  EXPECT_EQ(Book().ActiveSheet()->Name(), "Charts");  // Viewing a sheet doesn't activate it.
  Book().FindWorksheet("Far")->SetCellValueAt(1, 1, 5.0);
  view.Update();
  EXPECT_EQ(Tabs(), "[Data1]|Charts|Notes && more|Far");
  Activate("Charts");  // This sheet was already active.
  EXPECT_EQ(Tabs(), "Data1|[Charts]|Notes && more|Far");
  view.Tabs().setCurrentIndex(3);
  EXPECT_EQ(Sheet().ActiveText(), "5");  // The value was written while the sheet wasn't visible.
  view.ShowActive();
  EXPECT_EQ(Tabs(), "Data1|[Charts]|Notes && more|Far");
  EXPECT_EQ(test::ErrorOf([&] { Activate("Notes & more"); }), runtime::error::kApplication);
  EXPECT_EQ(Tabs(), "Data1|[Charts]|Notes && more|Far");
}

TEST_F(BookViewTest, ACellThatWasActivatedIsScrolledTo) {
  BookView& view = Show(BookOfSheets());
  const auto sheet = Book().FindWorksheet("Charts");
  EXPECT_EQ(ActiveCell(), "A1");
  sheet->Cells(900, 60)->Activate();
  view.Update();
  EXPECT_EQ(ActiveCell(), "BH900");
  EXPECT_TRUE(Sheet().viewport()->rect().contains(Sheet().CellArea({900, 60})));
  // The user's position is kept while the sheet is only written or activated again.
  Press(Qt::Key_Home, Qt::ControlModifier);
  Activate("Data1");
  Activate("Charts");
  EXPECT_EQ(ActiveCell(), "A1");
}

TEST_F(BookViewTest, AChartIsFoundOnItsSheet) {
  BookView& view = Show(BookOfSheets());
  view.Tabs().setCurrentIndex(0);
  EXPECT_FALSE(view.Reveal("VEX_Chart9"));
  EXPECT_EQ(Tabs(), "[Data1]|Charts|Notes && more|Far");
  EXPECT_TRUE(view.Reveal("VEX_Chart1"));
  EXPECT_EQ(Tabs(), "Data1|[Charts]|Notes && more|Far");
  EXPECT_TRUE(Sheet().viewport()->rect().contains(Sheet().FrameArea(Sheet().Frames()[0])));
}

TEST_F(BookViewTest, KeysSelectTheNextSheet) {
  Show(BookOfSheets());
  Press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Tabs(), "Data1|Charts|[Notes && more]|Far");
  for (int i = 0; i < 5; ++i) Press(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Tabs(), "[Data1]|Charts|Notes && more|Far");
  Press(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Tabs(), "[Data1]|Charts|Notes && more|Far");
}

TEST_F(BookViewTest, GridLinesAndHeadsAreThoseOfTheWindow) {
  BookView& view = Show(test::SalesBook({}));
  const QRect before = Sheet().CellArea({2, 2});
  EXPECT_GT(Sheet().CellArea({1, 1}).top(), 0);
  const QColor base = view.palette().color(QPalette::Base);
  EXPECT_NE(Shot().pixelColor(before.right(), before.center().y()), base);
  host_->ActiveWindow()->SetDisplayGridlines(false);
  view.Update();
  EXPECT_EQ(Shot().pixelColor(before.right(), before.center().y()), base);
  host_->ActiveWindow()->SetDisplayHeadings(false);
  view.Update();
  EXPECT_EQ(Sheet().CellArea({1, 1}).topLeft(), QPoint(0, 0));
}

TEST_F(BookViewTest, AChartSheetShowsItsChart) {
  // The charts' sheet becomes a chart sheet with the drawing of its first chart.
  auto book = test::SalesBook({test::Definition{}});
  book.Write(folder_ / "chartsheet.xlsx");
  test::EditPart(folder_ / "chartsheet.xlsx", "/xl/_rels/workbook.xml.rels", [](S& links) {
    const auto at = links.find("/worksheet\"", links.find("rId2"));
    links.replace(at, 11, "/chartsheet\"");
  });
  OpenFile(folder_ / "chartsheet.xlsx");
  BookView& view = Show();
  std::vector<QSizeF> drawn;
  view.SetChartPainter([&](QPainter&, const excel::Ref<excel::Chart>& chart, const QRectF& area) {
    EXPECT_TRUE(chart);
    drawn.push_back(area.size());
    return true;
  });
  view.Tabs().setCurrentIndex(1);
  QApplication::processEvents();
  view.grab();
  EXPECT_EQ(view.ShownSheet(), nullptr);
  ASSERT_EQ(drawn.size(), 1U);
  EXPECT_GT(drawn[0].width(), 700);
}

TEST_F(BookViewTest, WorkbooksOfAllKindsAreShownAndStayAsTheyAre) {
  std::vector<std::filesystem::path> books;
  for (const S& folder : {S(test::kSourceFolder) + "/examples", S(test::kCorpusFolder) + "/charts",
                          S(test::kCorpusFolder) + "/real", S(test::kCorpusFolder) + "/made"}) {
    std::error_code ignored;  // The corpus may exist.
    for (const auto& entry : std::filesystem::directory_iterator(folder, ignored)) {
      if (entry.path().extension() == ".xlsx") books.push_back(entry.path());
    }
  }
  int shown = 0;
  for (const auto& path : books) {
    SCOPED_TRACE(path.filename());
    view_.reset();
    try {
      OpenFile(path);
    } catch (const xlsx::PackageError&) {
      continue;  // Another test checks which workbooks are refused.
    }
    BookView& view = Show();
    for (int tab = 0; tab < view.Tabs().count(); ++tab) {
      view.Tabs().setCurrentIndex(tab);
      view.grab();
      if (SheetView* sheet = view.ShownSheet()) {
        Press(Qt::Key_End, Qt::ControlModifier);
        for (const ShownFrame& frame : sheet->Frames()) CaptionOf(frame);
      }
      view.grab();
    }
    EXPECT_FALSE(Book().Changed());
    EXPECT_FALSE(Book().Damage());
    ++shown;
  }
  EXPECT_GE(shown, 4);
}

TEST_F(BookViewTest, AnUnreadableSheetShowsItsErrorAndTheWorkbookCanBeSaved) {
  auto book = BookOfSheets();
  book.Sheet("Far").beforeData = "<!DOCTYPE a>";
  BookView& view = Show(book);
  const QImage readable = Shot();
  view.Tabs().setCurrentIndex(3);
  EXPECT_NE(Shot(), readable);
  EXPECT_EQ(Sheet().ActiveText(), "");
  Press(Qt::Key_Down);
  EXPECT_FALSE(Book().Damage());
  SaveAndReopen();
}

}  // namespace
}  // namespace plotsmith::qtbook

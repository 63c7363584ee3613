#include "host/excel/Window.h"
#include "runtime/Strings.h"
#include "tests/support/ChartTest.h"
#include "tests/support/ErrorOf.h"
#include "xlsx/Worksheet.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;

class WindowTest : public test::HostTest {
 protected:
  void HideGridAndHeadings() {
    host_->ActiveWindow()->SetDisplayGridlines(false);
    host_->ActiveWindow()->SetDisplayHeadings(false);
  }
  /// Returns the saved part of a sheet up to its cells.
  S SavedHead(const S& sheet) {
    const S part = SavedPart(Book().Tabs().Find(sheet)->part);
    return part.substr(part.find("<worksheet"), part.find("<sheetData") - part.find("<worksheet"));
  }
};

TEST_F(WindowTest, IsNothingWhileNoWorkbookIsOpen) {
  EXPECT_FALSE(xlsx::Application::Create()->ActiveWindow());
}

TEST_F(WindowTest, ANewSheetKeepsItsViewWithCellsAndTab) {
  Open(test::SalesBook({}));
  const auto sheet = Book().Tabs().Add(2);
  sheet->SetCellValueAt(2, 3, 1.0);  // The cells are rewritten.
  HideGridAndHeadings();
  EXPECT_EQ(journal_.end()[-2], "ActiveWindow.DisplayGridlines = False");
  EXPECT_EQ(journal_.end()[-1], "ActiveWindow.DisplayHeadings = False");
  SaveAndReopen();
  EXPECT_EQ(SavedHead("Sheet1"),
            "<worksheet xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\">"
            "<dimension ref=\"C2\"/><sheetViews><sheetView showGridLines=\"0\" showRowColHeaders=\"0\" "
            "tabSelected=\"1\" workbookViewId=\"0\"/></sheetViews><sheetFormatPr defaultRowHeight=\"15\"/>");
  EXPECT_EQ(Cells("Sheet1", 2, 3, 2, 3), "1");
}

TEST_F(WindowTest, OtherSheetsAndTheCellsKeepTheirBytes) {
  test::PlainBook book = test::SalesBook({});
  book.Sheet("Data1").beforeData =
      "<sheetPr/><dimension ref=\"A1:D5\"/><sheetFormatPr defaultRowHeight=\"15\"/>";
  Open(book);
  EXPECT_FALSE(Book().Changed());
  host_->ActiveWindow()->SetDisplayGridlines(true);  // This sets the current value.
  EXPECT_FALSE(Book().Changed());
  const auto window = host_->ActiveWindow();
  window->SetDisplayGridlines(false);
  EXPECT_TRUE(Book().Changed());
  SaveAndReopen();
  const auto before = Package::Open(folder_ / "book.xlsx"), after = Package::Open(folder_ / "saved.xlsx");
  const S view = "<sheetViews><sheetView showGridLines=\"0\" workbookViewId=\"0\"/></sheetViews>";
  EXPECT_EQ(before.Parts(), after.Parts());
  for (const S& part : before.Parts()) {
    const S text = before.Read(part);
    const bool shown = part == "/xl/worksheets/sheet1.xml";
    EXPECT_EQ(after.Read(part),
              shown ? runtime::Replace(text, "<sheetFormatPr", view + "<sheetFormatPr") : text);
  }
}

TEST_F(WindowTest, ShowsTheSheetThatIsActiveWhenItIsAsked) {
  Open(test::SalesBook({}));
  const auto window = host_->ActiveWindow();
  Book().FindWorksheet("Charts")->Activate();
  window->SetDisplayHeadings(false);
  SaveAndReopen();
  EXPECT_FALSE(test::Has(SavedHead("Data1"), "showRowColHeaders"));
  EXPECT_TRUE(test::Has(SavedHead("Charts"), "showRowColHeaders=\"0\" tabSelected=\"1\""));
}

TEST_F(WindowTest, ASheetInTheStrictVocabularyWithAPrefixGetsItsView) {
  test::SalesBook({}).Write(folder_ / "strict.xlsx");
  const S main = "http://purl.oclc.org/ooxml/spreadsheetml/main";
  test::EditPart(folder_ / "strict.xlsx", "/xl/worksheets/sheet1.xml", [&](S& text) {
    text = "<x:worksheet xmlns:x=\"" + main + "\"><x:sheetPr/><x:sheetData/></x:worksheet>";
  });
  OpenFile(folder_ / "strict.xlsx");
  HideGridAndHeadings();
  SaveAndReopen();
  EXPECT_EQ(SavedPart("/xl/worksheets/sheet1.xml"),
            "<x:worksheet xmlns:x=\"" + main +
                "\"><x:sheetPr/><x:sheetViews><x:sheetView showGridLines=\"0\" showRowColHeaders=\"0\" "
                "workbookViewId=\"0\"/></x:sheetViews><x:sheetData/></x:worksheet>");
}

TEST_F(WindowTest, RefusesSheetsWithoutCells) {
  const struct {
    const char* edited;  ///< The changed part.
    const char *from, *to;
    S error;
    bool damaged;
  } cases[] = {{"/xl/_rels/workbook.xml.rels", "relationships/worksheet\" Target=\"worksheets/sheet1.xml",
                "relationships/chartsheet\" Target=\"worksheets/sheet1.xml",
                "Unable to set the DisplayGridlines property of the Window class", false},
               {"/xl/worksheets/sheet1.xml", "<sheetData>", "",
                "The workbook can't be read: its part /xl/worksheets/sheet1.xml can't be read: it has "
                "no element for its cells.",
                true}};
  for (const auto& c : cases) {
    test::SalesBook({}).Write(folder_ / "edited.xlsx");
    test::EditPart(folder_ / "edited.xlsx", c.edited,
                   [&](S& text) { text = runtime::Replace(text, c.from, c.to); });
    OpenFile(folder_ / "edited.xlsx");
    const auto hide = [&] { host_->ActiveWindow()->SetDisplayGridlines(false); };
    EXPECT_EQ(test::ErrorOf(hide), runtime::error::kApplication);
    EXPECT_EQ(test::ErrorTextOf<runtime::RuntimeError>(hide), c.error);
    EXPECT_EQ(Book().Damage().has_value(), c.damaged);
    EXPECT_FALSE(Book().Changed());
  }
}

}  // namespace
}  // namespace plotsmith::xlsx

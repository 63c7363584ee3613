#include <functional>

#include "runtime/Strings.h"
#include "tests/support/ChartTest.h"
#include "tests/support/ErrorOf.h"
#include "xlsx/Worksheet.h"
#include "xlsx/drawing/DefaultTheme.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::xlsx {
namespace {

using S = std::string;
using Texts = std::vector<S>;

const S kBookPart = "/xl/workbook.xml";

class BookTest : public test::HostTest {
 protected:
  /// Opens a workbook with the sheets One and Two and with XML after the list of sheets.
  void OpenWith(const S& behindSheets) {
    test::PlainBook book;
    book.sheets = {{"One", {{1.0}, {2.0}}}, {"Two"}};
    book.Write(folder_ / "book.xlsx");
    test::EditPart(folder_ / "book.xlsx", kBookPart,
                   [&](S& xml) { xml.insert(xml.find("</workbook>"), behindSheets); });
    OpenFile(folder_ / "book.xlsx");
  }
  /// Saves, and returns the XML of the workbook part after the list of sheets.
  S SavedBehindSheets() {
    SaveAndReopen();
    const S xml = SavedPart(kBookPart), end = "</sheets>";
    return test::Between(xml.substr(xml.find(end) + end.size()), "", "</workbook>");
  }
  Texts Names() {
    Texts names;
    for (int i = 1; i <= Book().Names()->Count(); ++i) {
      const auto name = Book().Names()->Item(i);
      names.push_back(name->Name() + name->RefersTo());
    }
    return names;
  }
};

TEST_F(BookTest, LocalNamesStayWithTheirSheets) {
  const auto names = [](const S& one, const S& two) {
    return "<definedNames><definedName name=\"_xlnm.Print_Area\" localSheetId=\"" + one +
           "\">One!$A$2</definedName><definedName name=\"Common\">One!$A$2</definedName>"
           "<definedName name=\"B\" localSheetId=\"" +
           two + "\">One!$A$2</definedName></definedNames>";
  };
  struct {
    const char* what;
    std::function<void(Workbook&)> change;
    S one, two;
  } const kCases[] = {
      {"before both", [](Workbook& book) { book.Tabs().Add(0); }, "1", "2"},
      {"between them", [](Workbook& book) { book.Tabs().Add(1); }, "0", "2"},
      {"behind them", [](Workbook& book) { book.Tabs().Add(2); }, "0", "1"},
      {"two sheets, one of which is removed again",
       [](Workbook& book) {
         book.Tabs().Add(1);
         book.Tabs().Add(0);
         book.Tabs().Remove(*book.Tabs().All()[0]);
       },
       "0", "2"},
  };
  for (const auto& test : kCases) {
    OpenWith(names("0", "1"));
    EXPECT_EQ(Names(), (Texts{"Common=One!$A$2", "One!Print_Area=One!$A$2", "Two!B=One!$A$2"}));
    test.change(Book());
    EXPECT_EQ(Names(), (Texts{"Common=One!$A$2", "One!Print_Area=One!$A$2", "Two!B=One!$A$2"})) << test.what;
    EXPECT_EQ(SavedBehindSheets(), names(test.one, test.two)) << test.what;
  }
}

TEST_F(BookTest, EachNameFollowsTheRows) {
  OpenWith(
      "<definedNames><definedName name=\"A\">One!$A$2</definedName><definedName name=\"B\">Two!$A$2"
      "</definedName><definedName name=\"C\">One!$A$1:$B$2</definedName></definedNames>");
  Book().FindWorksheet("One")->Rows(2)->Insert();
  EXPECT_EQ(Names(), (Texts{"A=One!$A$3", "B=Two!$A$2", "C=One!$A$1:$B$3"}));
  EXPECT_EQ(SavedBehindSheets(),
            "<definedNames><definedName name=\"A\">One!$A$3</definedName><definedName name=\"B\">Two!$A$2"
            "</definedName><definedName name=\"C\">One!$A$1:$B$3</definedName></definedNames>");
}

TEST_F(BookTest, ANewNameIsInItsPlaceInTheWorkbookPart) {
  const S name = "<definedName name=\"New\">One!$A$1</definedName>";
  for (const S element :
       {"calcPr", "oleSize", "customWorkbookViews", "pivotCaches", "smartTagPr", "smartTagTypes",
        "webPublishing", "fileRecoveryPr", "webPublishObjects", "extLst"}) {
    OpenWith("<" + element + "/>");
    Book().DefinedNames().Define("New", "One!$A$1");
    EXPECT_EQ(Names(), Texts{"New=One!$A$1"});
    EXPECT_EQ(SavedBehindSheets(), "<definedNames>" + name + "</definedNames><" + element + "/>");
  }
  const S old = "<definedName name=\"Old\">1</definedName>";
  for (const S before : {"", "<functionGroups/>", "<externalReferences/>"}) {
    OpenWith(before + "<definedNames>" + old + "</definedNames>");
    EXPECT_EQ(Names(), Texts{"Old=1"});
    Book().DefinedNames().Define("New", "One!$A$1");
    EXPECT_EQ(Names(), (Texts{"New=One!$A$1", "Old=1"}));
    EXPECT_EQ(SavedBehindSheets(), before + "<definedNames>" + old + name + "</definedNames>");
  }
}

TEST_F(BookTest, WhatIsNoWorkbookIsRefused) {
  struct {
    S part, from, to, message;
  } const kCases[] = {
      {"/_rels/.rels", "/officeDocument\"", "/other\"", "it is not a workbook: it has no main part"},
      {"/_rels/.rels", "xl/workbook.xml", "xl/none.xml", "it is not a workbook: it has no main part"},
      {kBookPart, "workbook", "document", "it is not a workbook"},
      {"/[Content_Types].xml", "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml",
       "application/vnd.ms-excel.sheet.binary.macroEnabled.main",
       "it is a binary workbook (.xlsb); save it as .xlsx first, because only .xlsx, .xlsm, .xltx and .xltm "
       "can be read"},
      {kBookPart, "<sheets>", "<sheets", "its part /xl/workbook.xml can't be read: its XML is damaged"},
  };
  for (const auto& c : kCases) {
    test::PlainBook book;
    book.sheets = {{"One"}};
    book.Write(folder_ / "book.xlsx");
    test::EditPart(folder_ / "book.xlsx", c.part, [&](S& text) {
      ASSERT_NE(text.find(c.from), S::npos) << c.from;
      text = runtime::Replace(text, c.from, c.to);
    });
    const auto open = [&] { Workbook::Open(*Application::Create("16.0"), folder_ / "book.xlsx"); };
    EXPECT_EQ(test::ErrorTextOf<PackageError>(open), c.message);
  }
}

TEST_F(BookTest, AChangedChartGetsATheme) {
  const auto themes = [&](const char* file) {
    S text;
    const Package package = Package::Open(folder_ / file);
    for (const auto& link : package.Relationships(kBookPart)) {
      if (link.type == "theme") text += link.target + " " + package.ContentType(link.target);
    }
    return text;
  };
  Open(test::SalesBook({{"VEX_Chart1"}}));
  Refresh();
  SaveAndReopen();
  EXPECT_EQ(themes("book.xlsx"), "");
  EXPECT_EQ(themes("saved.xlsx"), "/xl/theme/theme1.xml " + S(content_type::kTheme));
  EXPECT_EQ(SavedPart("/xl/theme/theme1.xml"), DefaultTheme(kTransitional));
  // The theme that exists stays, and a workbook without changed charts gets none.
  Book().FindWorksheet("Charts")->ChartObjects()->Item("Chart 1")->Chart()->SetHasLegend(true);
  SaveAndReopen();
  EXPECT_EQ(themes("saved.xlsx"), "/xl/theme/theme1.xml " + S(content_type::kTheme));
  Open(test::SalesBook({{"VEX_Chart1"}}));
  Book().FindWorksheet("Data1")->SetCellValueAt(9, 9, 1.0);
  SaveAndReopen();
  EXPECT_EQ(themes("saved.xlsx"), "");
}

}  // namespace
}  // namespace plotsmith::xlsx

#include <memory>
#include <vector>

#include "common/Cells.h"
#include "common/Documents.h"
#include "common/HostAnswers.h"
#include "common/Messages.h"
#include "common/RunVariables.h"
#include "common/Worksheets.h"
#include "common/YieldToHost.h"
#include "controller/System.h"
#include "tests/support/HandView.h"
#include "tests/support/HostTest.h"
#include "xlsx/Worksheet.h"

namespace plotsmith {
namespace {

using S = std::string;

class CommonFunctionsTest : public test::HostTest {};

TEST_F(CommonFunctionsTest, MessagesAndThePendingMessage) {
  sPendingMessage = "pending";
  ShowMessage("");
  ShowMessage("");
  sPendingMessage = "lost";
  ShowMessage("text");
  ShowMessage("");
  EXPECT_EQ(Messages(), (std::vector<S>{"Brindle Plotsmith: pending", "Brindle Plotsmith: text"}));
  ShowRuntimeError(runtime::RuntimeError(13));
  EXPECT_EQ(Messages().back(),
            "Brindle Plotsmith: ERROR\nNumber: 13\nDescription: Type mismatch\nSource: Plotsmith");
  EXPECT_EQ(AskOkCancel("Sure?"), 1);
}

TEST_F(CommonFunctionsTest, TokensFillPlaceholdersByPosition) {
  EXPECT_EQ(ReplaceTokens("/TKN/ and /TKN/", {"a"}), "a and ");
  EXPECT_EQ(ReplaceTokens("/TKN/ and /TKN/", {}), " and ");
  EXPECT_EQ(ReplaceTokens("/TKN/", {1, "surplus"}), "1");
  EXPECT_EQ(ReplaceTokens("/TKN/ /TKN/", {"</TKN/>", "b"}), "<b> ") << "a token may contain a placeholder";
}

TEST_F(CommonFunctionsTest, SheetsByName) {
  test::PlainBook book = test::SalesBook({});
  book.Sheet("Charts").state = "hidden";
  Open(book);
  EXPECT_TRUE(SheetExists("vex_chartDEFINITIONS"));
  EXPECT_FALSE(SheetExists("Nowhere"));
  EXPECT_TRUE(SheetIsVisible("Data1"));
  EXPECT_FALSE(SheetIsVisible("Charts"));
  EXPECT_TRUE(SheetIsVisible("VEX_ChartDefinitions")) << "very hidden isn't hidden";
  EXPECT_FALSE(SheetIsVisible("Nowhere"));
  for (const char* bad : {"a/b", "", "Data1", "History", "'x", "a name that is much too long for it"}) {
    EXPECT_FALSE(CreateSheet(bad, 1, -1)) << bad;
    EXPECT_EQ(journal_.back(), "Application.DisplayAlerts = True") << bad;
  }
  EXPECT_EQ(oWorkbook->Sheets()->Count(), 3) << "no additional sheet remains";
  EXPECT_TRUE(CreateSheet("First", 0, -1));
  EXPECT_EQ(oWorkbook->Sheets()->Item(1)->Name(), "First");
  EXPECT_EQ(oWorkbook->ActiveSheet()->Name(), "First") << "a visible sheet remains active";
  EXPECT_TRUE(CreateSheet("Last", 1, 2));
  EXPECT_EQ(oWorkbook->ActiveSheet()->Name(), "First");
  EXPECT_TRUE(CreateSheet("Before", 7, 0)) << "at the host's default position";
  EXPECT_EQ(oWorkbook->Sheets()->Item(1)->Name(), "Before");
  SaveAndReopen();
  EXPECT_EQ(oWorkbook->Sheets()->Item(6)->Name(), "Last");
  EXPECT_EQ(oWorkbook->ActiveSheet()->Name(), "First");

  test::PlainBook locked = test::SalesBook({});
  locked.workbookExtra = "<workbookProtection lockStructure=\"1\"/>";
  Open(locked);
  journal_.clear();
  EXPECT_FALSE(CreateSheet("More", 1, -1));
  EXPECT_EQ(journal_,
            (std::vector<S>{"Application.DisplayAlerts = False", "Application.DisplayAlerts = True"}));
}

TEST_F(CommonFunctionsTest, CellsAsEachKindOfValue) {
  test::PlainBook book = test::SalesBook({});
  const auto raw = [](const char* xml) { return test::RawCell{xml}; };
  book.Sheet("Data1").rows = {
      {raw(" t='e'><v>#DIV/0!</v></c>"), S(" 12 "), S("x"), raw(" t='b'><v>1</v></c>"), 2.5, {}}};
  Open(book);
  auto& sheet = *Book().FindWorksheet("Data1");
  using runtime::Variant;
  const std::tuple<int, Variant, Variant, Variant> cases[] = {
      {1, "#DIV/0!", 0.0, ""},   {2, " 12 ", 12.0, " 12 "}, {3, "x", 0.0, "x"},
      {4, "TRUE", -1.0, "True"}, {5, "2.5", 2.5, "2.5"},    {6, "", 0.0, ""}};
  for (const auto& [column, text, number, string] : cases) {
    EXPECT_EQ(GetCellValue(sheet, 1, column, 0), text) << column;
    EXPECT_EQ(GetCellValue(sheet, 1, column, 1), number) << column;
    EXPECT_EQ(GetCellValue(sheet, 1, column, 2), string) << column;
  }
  EXPECT_TRUE(GetCellValue(sheet, 1, 1, 9).IsEmpty());
  EXPECT_TRUE(GetCellValue(sheet, 0, 1, 9).IsNull());
  EXPECT_EQ(GetCellValue(sheet, 0, 1, 0), Variant(""));
  EXPECT_EQ(GetCellValue(sheet, 1, 20000, 1), Variant(0.0));
}

TEST_F(CommonFunctionsTest, SampleNumbers) {
  Open(test::SalesBook({}));
  EXPECT_EQ(FormatSampleNumber("#,##0.00"), "12,345.68");
  EXPECT_EQ(FormatSampleNumber("General"), "12345.6789");
  EXPECT_EQ(Cells("VEX_ChartDefinitions", 1, 2, 1, 2), "");
  Book().FindWorksheet("VEX_ChartDefinitions")->SetCellValueAt(2, 2, S("kept"));
  EXPECT_EQ(FormatSampleNumber("0"), "12346");
  EXPECT_EQ(Cells("VEX_ChartDefinitions", 2, 2, 2, 2), "kept");
  EXPECT_EQ(FormatSampleNumber("0.0.\""), "(invalid format)");
}

/// A desktop whose clock is set by the test.
class ClockDesktop : public cli::ConsoleDesktop {
 public:
  double Timer() override { return now; }
  double now = 0;
};

TEST_F(CommonFunctionsTest, ARunResetsTheVariables) {
  Open(test::SalesBook({{"VEX_Chart1"}}));
  Refresh();
  oApplication = host_;
  oWorkbook = host_->ActiveWorkbook();
  colTables = runtime::MakeRef<DocumentCollection>();
  colCharts = runtime::MakeRef<DocumentCollection>();
  colChartObjects = runtime::MakeRef<runtime::Collection<runtime::Ref<excel::Chart>>>();
  colChartShapes = runtime::MakeRef<runtime::Collection<runtime::Ref<excel::Shape>>>();
  oChartDoc = NewXMLDocument();
  sCustomAppName = sChartType = sChartID = sTableID = sPendingMessage = "used";
  lMethodType = 7;
  bRunAborted = bUnloadingPage = true;
  ResetRunVariables();
  EXPECT_FALSE(oApplication || oWorkbook || colTables || colCharts || colChartObjects || colChartShapes);
  EXPECT_FALSE(oChartDoc);
  EXPECT_EQ(sCustomAppName + "|" + sChartType + "|" + sChartID + "|" + sTableID + "|" + sPendingMessage,
            "|unknown|||");
  EXPECT_EQ(lMethodType, 0);
  EXPECT_FALSE(bRunAborted || bUnloadingPage);
}

TEST_F(CommonFunctionsTest, YieldsAtMostEveryTwoSeconds) {
  const auto clock = std::make_shared<ClockDesktop>();
  const auto view = std::make_shared<test::HandView>();
  StartSystem(clock, view);
  // The stored time is in whole seconds. After midnight nothing happens until the clock passes it.
  const std::pair<double, int> cases[] = {{50000.4, 1}, {50001.9, 1}, {50002.0, 2}, {86399.0, 3},
                                          {5.0, 3},     {86400.9, 3}, {86401.0, 4}};
  for (const auto& [now, yields] : cases) {
    clock->now = now;
    YieldToHost();
    EXPECT_EQ(view->yields, yields) << now;
  }
}

}  // namespace
}  // namespace plotsmith

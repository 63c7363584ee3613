#include <algorithm>
#include <memory>
#include <vector>

#include "common/App.h"
#include "common/RunVariables.h"
#include "controller/CPlotsmithController.h"
#include "controller/PSController.h"
#include "controller/System.h"
#include "pages/Page.h"
#include "tests/support/HandView.h"
#include "tests/support/HostTest.h"

namespace plotsmith {
namespace {

using namespace test;
using S = std::string;

/// Runs the wizard with a simulated user that requests moves, like the buttons of the pages.
class NavigationTest : public HostTest {
 protected:
  NavigationTest() { StartSystem(desktop_, view_); }
  S Run(std::vector<HandView::Gesture> gestures) {
    view_->log.clear();
    view_->gestures = std::move(gestures);
    CPlotsmithController().RunPlotsmith(host_, "Host", "help.chm");
    return view_->log;
  }
  static auto Jump(int lStep, int lOrigin) {
    return [=](forms::Form& front) { PSJumpToStep(lStep, lOrigin, &dynamic_cast<Page&>(front)); };
  }
  /// Selects the chart VEX_Chart1 like a button of the first page, with another type.
  static auto Choose(int lMethod, const S& type) {
    return [=](forms::Form& front) {
      lMethodType = lMethod;
      sChartID = "VEX_Chart1";
      sTableID = "Data1";
      sChartType = type;
      oChartDoc = colCharts->Item(sChartID);
      PSJumpToStep(step::kNext, origin::kSelectAction, &dynamic_cast<Page&>(front));
    };
  }
  std::shared_ptr<HandView> view_ = std::make_shared<HandView>();
};

const S kAction = "show frmPSSelectAction; close frmPSSelectAction; ";
const S kAbc = "show frmPSLayoutABC; close frmPSLayoutABC; ";
const S kLocation = "show frmPSChartLocation; close frmPSChartLocation; ";

/// Returns the log of nested pages: a page closes when the handler that opened the next page returns.
S Nested(const std::vector<S>& names) {
  S opened, closed;
  for (const S& name : names) {
    opened += "show " + name + "; ";
    closed = "close " + name + "; " + closed;
  }
  return opened + closed;
}

TEST_F(NavigationTest, WaysThroughTheWizard) {
  Open(SalesBook({{"VEX_Chart1"}}));
  const auto next = [](int from) { return Jump(step::kNext, from); };
  const auto back = [](int from) { return Jump(step::kPrevious, from); };
  EXPECT_EQ(Run({}), kAction);
  EXPECT_EQ(Run({Choose(0, "bubble"), next(3), next(4)}),
            Nested({"frmPSSelectAction", "frmPSSelectTable", "frmPSLayoutBubble", "frmPSChartLocation"}));
  EXPECT_EQ(Run({Choose(1, "pie")}), Nested({"frmPSSelectAction", "frmPSLayoutPie"}))
      << "modifying a chart with a suitable table starts at its layout";
  EXPECT_EQ(Run({Choose(0, "area"), next(3), back(4), back(3)}),
            Nested({"frmPSSelectAction", "frmPSSelectTable", "frmPSLayoutABC", "frmPSSelectTable",
                    "frmPSSelectAction"}));
  EXPECT_EQ(Run({Choose(1, "column"), next(4), back(5)}),
            Nested({"frmPSSelectAction", "frmPSLayoutABC", "frmPSChartLocation", "frmPSLayoutABC"}));
  EXPECT_EQ(sChartType, "unknown");
  EXPECT_TRUE(Messages().empty());
  EXPECT_FALSE(colCharts) << "the run is over";
  EXPECT_FALSE(oWorkbook);
}

TEST_F(NavigationTest, FinishStopsAtTheFirstInvalidPage) {
  Open(SalesBook({{"VEX_Chart1"}}));
  // The page doesn't offer this type for the table, so the test sets it directly.
  const auto finish = [](const S& type) {
    return [=](forms::Form& front) {
      sChartType = type;
      PSJumpToStep(step::kFinish, origin::kSelectTable, &dynamic_cast<Page&>(front));
    };
  };
  EXPECT_EQ(Run({Choose(0, "column"), finish("column")}),
            Nested({"frmPSSelectAction", "frmPSSelectTable", "frmBusyPS"}));
  EXPECT_NE(std::find(journal_.begin(), journal_.end(), "Chart.ChartType = 51"), journal_.end())
      << "the chart was drawn";
  sCustomAppName = "Host";
  EXPECT_EQ(Run({Choose(0, "column"), finish("strategic bucket")}),
            Nested({"frmPSSelectAction", "frmPSSelectTable", "frmPSLayoutStrBuck"}));
  EXPECT_EQ(Messages(), (std::vector<S>{"Host Brindle Plotsmith: Invalid property value",
                                        "Brindle Plotsmith: Please select a 'Strategic Buckets' entry"}))
      << "there is no bucket table";
  Run({Choose(0, "column"), finish("unknown")});
  EXPECT_EQ(Messages().back(), "Brindle Plotsmith: PSController.JumpFinish\nUnknown chart type");
}

TEST_F(NavigationTest, ARunWithoutTablesEndsBeforeItsMessage) {
  PlainBook book;
  book.sheets.push_back({"Sheet1"});
  Open(book);
  EXPECT_EQ(Run({}), "");
  EXPECT_EQ(Messages(),
            (std::vector<S>{"Brindle Plotsmith: This workbook contains no tables. You must create "
                            "one in order to run the Plotsmith."}));
  const S off = "Application.ScreenUpdating = False", on = "Application.ScreenUpdating = True";
  EXPECT_EQ(std::vector<S>(journal_.end() - 3, journal_.end()), (std::vector<S>{off, on, on}))
      << "the run ends, then shows its message, and ends again";
}

TEST_F(NavigationTest, MessagesAndErrors) {
  Open(SalesBook({{"VEX_Chart1"}}));
  PSJumpToStep(2, 1, nullptr);
  for (const int step : {step::kNext, step::kPrevious, step::kFinish}) PSJumpToStep(step, 77, nullptr);
  EXPECT_EQ(
      Messages(),
      (std::vector<S>{"Brindle Plotsmith: PSController.PSJumpToStep\nUnsupported Navigation",
                      "Brindle Plotsmith: PSController.JumpNext\nDon't know where you're coming from!",
                      "Brindle Plotsmith: PSController.JumpPrevious\nDon't know where you're coming from!",
                      "Brindle Plotsmith: PSController.JumpFinish\nDon't know where you're coming from!"}));
  EXPECT_EQ(Run({[](forms::Form&) { throw runtime::RuntimeError(13); }}), kAction);
  EXPECT_EQ(Messages().back(), "Brindle Plotsmith: PSController.PSJumpToStep\nType mismatch");
  EXPECT_TRUE(bRunAborted);
  EXPECT_FALSE(colTables);
  EXPECT_EQ(Run({}), kAction) << "the next run has a new page";
  EXPECT_FALSE(bRunAborted);
}

class EntryTest : public HostTest {};

TEST_F(EntryTest, GuardsReportInOrder) {
  PlainBook book = SalesBook({});
  book.workbookExtra = "<workbookProtection lockStructure=\"true\"/>";
  Open(book);
  Refresh();
  EXPECT_EQ(Messages().back(),
            "Brindle Plotsmith: This workbook has been protected. To use the Plotsmith you need to turn off "
            "Structure Protection.");
  EXPECT_FALSE(Book().Changed());
  EXPECT_FALSE(oWorkbook);

  // A shared workbook has revision headers. If it is also protected, only the protection is reported.
  for (const bool isProtected : {true, false}) {
    if (!isProtected) book.workbookExtra = "";
    book.extraParts = {{"xl/revisions/revisionHeaders.xml", "<headers/>"}};
    book.Write(folder_ / "shared.xlsx");
    auto package = xlsx::Package::Open(folder_ / "shared.xlsx");
    package.AddRelationship(
        "/xl/workbook.xml",
        "http://schemas.openxmlformats.org/officeDocument/2006/relationships/revisionHeaders",
        "/xl/revisions/revisionHeaders.xml");
    package.Save(folder_ / "shared.xlsx");
    OpenFile(folder_ / "shared.xlsx");
    Refresh();
    EXPECT_EQ(Messages().back(), isProtected ? "Brindle Plotsmith: This workbook has been protected. To use "
                                               "the Plotsmith you need to turn off Structure Protection."
                                             : "Brindle Plotsmith: This is a shared workbook. To use the "
                                               "Plotsmith you need to turn off workbook sharing.");
  }

  host_ = xlsx::Application::Create();
  ResetSystem();
  Refresh();
  EXPECT_EQ(Messages().back(), "Brindle Plotsmith: You must have a workbook open to use the Plotsmith.");
  EXPECT_EQ(Messages().size(), 4u);
}

/// A host that is busy and refuses changes.
class RefusingHost : public excel::Application {
 public:
  explicit RefusingHost(std::shared_ptr<excel::Application> inner) : inner_(std::move(inner)) {}
  excel::Ref<excel::Workbook> ActiveWorkbook() override { return inner_->ActiveWorkbook(); }
  excel::Ref<excel::Chart> ActiveChart() override { return inner_->ActiveChart(); }
  excel::Ref<excel::Window> ActiveWindow() override { return inner_->ActiveWindow(); }
  std::string Version() override { return inner_->Version(); }
  bool ScreenUpdating() override { return inner_->ScreenUpdating(); }
  void SetScreenUpdating(bool value) override {
    if (screensRefused-- > 0) throw runtime::RuntimeError(1004);
    inner_->SetScreenUpdating(value);
  }
  bool Interactive() override { return interactive; }
  void SetInteractive(bool value) override {
    if (editing) throw runtime::RuntimeError(1004);
    inner_->SetInteractive(value);
  }
  std::int32_t Calculation() override { return inner_->Calculation(); }
  void SetCalculation(std::int32_t value) override { inner_->SetCalculation(value); }
  void SetDisplayAlerts(bool value) override { inner_->SetDisplayAlerts(value); }
  void Run(std::string_view macro, const std::vector<runtime::Variant>& a) override { inner_->Run(macro, a); }
  std::string StandardFont() override { return inner_->StandardFont(); }
  double StandardFontSize() override { return inner_->StandardFontSize(); }

  bool interactive = true;
  bool editing = false;
  int screensRefused = 0;

 private:
  std::shared_ptr<excel::Application> inner_;
};

TEST_F(EntryTest, EditModeIsFoundByTheHostsRefusal) {
  Open(SalesBook({}));
  ResetSystem();
  const auto editing = std::make_shared<RefusingHost>(host_);
  editing->editing = true;
  CPlotsmithController controller;
  controller.RefreshPlotsmithData(editing, "", "");
  EXPECT_EQ(Messages(),
            std::vector<S>{
                "Brindle Plotsmith: You are currently editing a cell or object. Please finish editing before "
                "using the Plotsmith."});
  editing->interactive = false;  // The user can't be editing then, so the property isn't set.
  controller.RefreshPlotsmithData(editing, "", "");
  EXPECT_EQ(Messages().size(), 1u);
}

TEST_F(EntryTest, ACancelledRunIsNotComplete) {
  Open(SalesBook({{"VEX_Chart1"}}));
  ResetSystem();
  std::vector<S> macros;
  for (const char* macro : {"VEXEvents.VEXChartRefreshStarted", "VEXEvents.VEXChartRefreshComplete"}) {
    host_->DefineMacro(macro, [&macros, macro](const auto&) { macros.emplace_back(macro); });
  }
  const auto refusing = std::make_shared<RefusingHost>(host_);
  refusing->screensRefused = 1;
  CPlotsmithController controller;
  controller.RefreshPlotsmithData(refusing, "", "");
  EXPECT_EQ(macros, std::vector<S>{"VEXEvents.VEXChartRefreshStarted"});
  ASSERT_EQ(Messages().size(), 1u);
  EXPECT_TRUE(Messages()[0].starts_with("Brindle Plotsmith: PSController.PSJumpToStep\n")) << Messages()[0];
  EXPECT_TRUE(bRunAborted);
  controller.RefreshPlotsmithData(refusing, "", "");
  EXPECT_EQ(macros.back(), "VEXEvents.VEXChartRefreshComplete") << "the next run is a new one";
}

TEST_F(EntryTest, AChartSheetInFrontDoesNotStopARefresh) {
  PlainBook book = SalesBook({{"VEX_Chart1"}});
  book.sheets.push_back({"Front", {}, 1, 1, "", {{"somebody's", ""}}});
  book.workbookExtra = "<bookViews><workbookView activeTab=\"3\"/></bookViews>";
  book.Write(folder_ / "front.xlsx");
  EditPart(folder_ / "front.xlsx", "/xl/_rels/workbook.xml.rels",
           [](S& links) { links.replace(links.rfind("/worksheet\""), 11, "/chartsheet\""); });
  OpenFile(folder_ / "front.xlsx");
  ASSERT_TRUE(host_->ActiveChart());
  Refresh();
  EXPECT_TRUE(Messages().empty()) << Messages()[0];
  EXPECT_NE(std::find(journal_.begin(), journal_.end(), "Chart.ChartType = 51"), journal_.end());
  EXPECT_EQ(journal_.back(), "Application.Run(\"VEXEvents.VEXChartRefreshComplete\")");
  EXPECT_FALSE(colCharts) << "the run has ended";
  // A chart that can't be read isn't the active chart and doesn't affect others.
  EditPart(folder_ / "front.xlsx", "/xl/worksheets/_rels/sheet4.xml.rels", [](S& links) { links += "<"; });
  OpenFile(folder_ / "front.xlsx");
  EXPECT_FALSE(host_->ActiveChart());
  Refresh();
  EXPECT_TRUE(Messages().empty()) << Messages()[0];
  EXPECT_NE(std::find(journal_.begin(), journal_.end(), "Chart.ChartType = 51"), journal_.end());
}

TEST_F(EntryTest, TheFirstCallersHostAndNameStay) {
  Open(SalesBook({{"VEX_Chart1"}}));
  ResetSystem();
  const auto first = host_;
  CPlotsmithController controller;
  S table = "Data1";
  controller.RefreshChartsForTable(first, table);
  EXPECT_EQ(sCustomAppName, "");
  EXPECT_TRUE(oWorkbook) << "this operation keeps the workbook";
  const auto second = xlsx::Application::Create();
  controller.RefreshPlotsmithData(second, "Second", "second.chm");
  EXPECT_EQ(Messages().back(), "Brindle Plotsmith: You must have a workbook open to use the Plotsmith.")
      << "the workbook is the caller's";
  EXPECT_EQ(sCustomAppName, "");
  EXPECT_EQ(App.HelpFile, "second.chm");
  EXPECT_TRUE(oApplication == excel::Ref<excel::Application>(first));
  ResetSystem();
  controller.RefreshChartsForTable(second, table);  // There is no workbook, and no check reports it.
  ASSERT_EQ(Messages().size(), 3u);
  EXPECT_EQ(Messages()[1],
            "Brindle Plotsmith: PSFunctions.RetrieveTableDefinitions\nObject variable or With block variable "
            "not set");
  EXPECT_EQ(Messages()[2],
            "Brindle Plotsmith: PSFunctions.RetrieveChartDefinitions\nObject variable or With block variable "
            "not set");
}

TEST_F(EntryTest, RenamedColumnsReportUnderTheShorterName) {
  Open(SalesBook({{"VEX_Chart1"}}));
  CPlotsmithController controller;
  std::vector<S> before = {"Region"}, after = {"Area"};
  controller.UpdateChartColumnNamesForTable(host_, "Data1", before, after);
  EXPECT_TRUE(Messages().empty());
  EXPECT_NE(Cells("VEX_ChartDefinitions", 2, 1, 2, 1).find("<column name=\"Area\""), S::npos);
  ResetSystem();
  controller.UpdateChartColumnNamesForTable(nullptr, "Data1", before, after);
  EXPECT_EQ(
      Messages(),
      std::vector<S>{"Brindle Plotsmith: CPlotsmithController.UpdateChartColumnNames\nObject variable or "
                     "With block variable not set"});
}

TEST_F(EntryTest, ARunLeavesNothingBehind) {
  Open(SalesBook({{"VEX_Chart1"}}));
  Refresh();
  EXPECT_FALSE(colTables || colCharts || colChartObjects || colChartShapes || oChartDoc);
  EXPECT_EQ(sChartType + "|" + sChartID + "|" + sTableID, "unknown||");
  EXPECT_TRUE(host_->ScreenUpdating());
  StopSystem();
  EXPECT_FALSE(App.Desktop || App.Forms);
}

}  // namespace
}  // namespace plotsmith

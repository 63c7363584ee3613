#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "common/App.h"
#include "common/CommonFunctions.h"
#include "common/RunVariables.h"
#include "controller/CPlotsmithController.h"
#include "controller/PSController.h"
#include "controller/ResetSystem.h"
#include "tests/support/HostTest.h"

namespace plotsmith {
namespace {

using test::PlainBook;
using test::SalesBook;
using S = std::string;

/// Pages that a script plays: each shown page does what comes next, and writes down what happens to it.
class ScriptedPages : public PageSet {
 public:
  struct ScriptedPage : Page {
    ScriptedPages& set;
    S name;
    ScriptedPage(ScriptedPages& owner, S pageName) : set(owner), name(std::move(pageName)) {}
    void ShowModal() override {
      set.log += "show " + name + "; ";
      if (set.script.empty()) return Unload();
      const auto step = set.script.front();
      set.script.erase(set.script.begin());
      step(*this);
    }
    void Unload() override {
      set.log += "unload " + name + "; ";
      if (set.failOnUnload) throw runtime::RuntimeError(5);
      PSJumpToStep(step::kEnd, 3, nullptr);  // as the unload event of a page does
    }
    bool ValidSelections() override {
      set.log += "ask " + name + "; ";
      return !set.invalid.contains(name);
    }
  };

  Page& Form(FormName form) override {
    static const char* kNames[] = {"Action", "Table", "ABC", "Bubble", "Pie", "StrBuck", "Location"};
    auto& page = pages[form];
    if (!page) page = std::make_unique<ScriptedPage>(*this, kNames[static_cast<int>(form)]);
    return *page;
  }

  std::map<FormName, std::unique_ptr<ScriptedPage>> pages;
  std::vector<std::function<void(ScriptedPage&)>> script;
  std::map<S, bool> invalid;
  bool failOnUnload = false;
  S log;
};

class NavigationTest : public test::HostTest {
 protected:
  NavigationTest() { oPages = pages_; }
  ~NavigationTest() override { oPages = nullptr; }
  S Run(std::vector<std::function<void(ScriptedPages::ScriptedPage&)>> script) {
    pages_->log.clear();
    pages_->script = std::move(script);
    CPlotsmithController().RunPlotsmith(host_, "Host", "help.chm");
    return pages_->log;
  }
  static auto Jump(int step, int origin) {
    return [=](ScriptedPages::ScriptedPage& page) { PSJumpToStep(step, origin, &page); };
  }
  static auto Choose(int method, const S& type) {
    return [=](ScriptedPages::ScriptedPage& page) {
      lMethodType = method;
      sChartType = type;
      PSJumpToStep(step::kNext, origin::kSelectAction, &page);
    };
  }
  std::shared_ptr<ScriptedPages> pages_ = std::make_shared<ScriptedPages>();
};

TEST_F(NavigationTest, WaysThroughTheWizard) {
  Open(SalesBook({{"VEX_Chart1"}}));
  const auto next = [](int from) { return Jump(step::kNext, from); };
  EXPECT_EQ(Run({}), "show Action; unload Action; ");
  EXPECT_EQ(Run({Choose(0, "bubble"), next(3), next(4)}),
            "show Action; unload Action; show Table; unload Table; show Bubble; unload Bubble; show "
            "Location; unload Location; ");
  EXPECT_EQ(Run({Choose(1, "pie")}),
            "show Action; unload Action; ask Table; unload Table; show Pie; unload Pie; ")
      << "to modify a chart whose table is good starts at its layout";
  pages_->invalid["Table"] = true;
  EXPECT_EQ(Run({Choose(2, "pie")}), "show Action; unload Action; ask Table; show Table; unload Table; ");
  pages_->invalid.clear();
  EXPECT_EQ(Run({Choose(0, "area"), next(3), Jump(step::kPrevious, 4), Jump(step::kPrevious, 3)}),
            "show Action; unload Action; show Table; unload Table; show ABC; unload ABC; show Table; unload "
            "Table; show Action; "
            "unload Action; ");
  EXPECT_EQ(sChartType, "unknown");
  EXPECT_TRUE(Messages().empty());
  EXPECT_FALSE(colCharts) << "the run is over";
  EXPECT_FALSE(oWorkbook);
}

TEST_F(NavigationTest, FinishStopsAtTheFirstPageThatIsNotSatisfied) {
  Open(SalesBook({{"VEX_Chart1"}}));
  const auto finishFrom = [&](const S& type) {
    return Run({Choose(0, type), [](ScriptedPages::ScriptedPage& page) {
                  sChartID = "VEX_Chart1";
                  PSJumpToStep(step::kFinish, origin::kSelectTable, &page);
                }});
  };
  const S start = "show Action; unload Action; show Table; unload Table; ";
  EXPECT_EQ(finishFrom("column"), start + "ask ABC; unload ABC; ask Location; unload Location; ");
  EXPECT_NE(std::find(journal_.begin(), journal_.end(), "Chart.ChartType = 51"), journal_.end())
      << "the chart was drawn";
  pages_->invalid["Location"] = true;
  EXPECT_EQ(finishFrom("strategic bucket"),
            start + "ask StrBuck; unload StrBuck; ask Location; show Location; unload Location; ");
  pages_->invalid["ABC"] = true;
  EXPECT_EQ(finishFrom("column"), start + "ask ABC; show ABC; unload ABC; ");
  EXPECT_TRUE(Messages().empty());
  finishFrom("unknown");
  EXPECT_EQ(Messages(), std::vector<S>{"Brindle Plotsmith: PSController.JumpFinish\nUnknown chart type"});
}

TEST_F(NavigationTest, ComplaintsAndErrors) {
  Open(SalesBook({{"VEX_Chart1"}}));
  PSJumpToStep(2, 1, nullptr);
  for (const int step : {step::kNext, step::kPrevious, step::kFinish}) PSJumpToStep(step, 77, nullptr);
  EXPECT_EQ(
      Messages(),
      (std::vector<S>{"Brindle Plotsmith: PSController.PSJumpToStep\nUnsupported Navigation",
                      "Brindle Plotsmith: PSController.JumpNext\nDon't know where you're coming from!",
                      "Brindle Plotsmith: PSController.JumpPrevious\nDon't know where you're coming from!",
                      "Brindle Plotsmith: PSController.JumpFinish\nDon't know where you're coming from!"}));
  Run({[](ScriptedPages::ScriptedPage&) { throw runtime::RuntimeError(13); }});
  EXPECT_EQ(Messages().back(), "Brindle Plotsmith: PSController.PSJumpToStep\nType mismatch");
  EXPECT_TRUE(bRunAborted);
  EXPECT_FALSE(colTables);
  // an error while a page is unloaded leaves the mark that keeps the end of the run from doing anything
  pages_->failOnUnload = true;
  Run({Jump(step::kNext, 2)});
  EXPECT_TRUE(bUnloadingPage);
  EXPECT_TRUE(colTables);
}

TEST_F(NavigationTest, OpeningWithoutChartsOrTables) {
  PlainBook bare;
  bare.sheets = {test::SalesSheet("Sheet1")};
  Open(bare);
  EXPECT_EQ(Run({}), "");
  EXPECT_EQ(Messages(),
            std::vector<S>{
                "Brindle Plotsmith: This workbook contains no tables. You must create one in order to run "
                "the Plotsmith."});
  EXPECT_FALSE(colTables);
  bare.sheets = {test::SalesSheet("Data1")};
  Open(bare);
  EXPECT_EQ(Run({}), "show Table; unload Table; ");
  EXPECT_EQ(lMethodType, 0);
  oPages = nullptr;
  Run({});
  EXPECT_EQ(
      Messages().back(),
      "Brindle Plotsmith: PSController.PSJumpToStep\nThe pages of the wizard are not part of this program.");
}

class EntryTest : public test::HostTest {};

TEST_F(EntryTest, GuardsSpeakInTheirOrder) {
  PlainBook book = SalesBook({});
  book.workbookExtra = "<workbookProtection lockStructure=\"true\"/>";
  Open(book);
  Refresh();
  EXPECT_EQ(Messages().back(),
            "Brindle Plotsmith: This workbook has been protected. To use the Plotsmith you need to turn off "
            "Structure Protection.");
  EXPECT_FALSE(Book().Changed());
  EXPECT_FALSE(oWorkbook);

  // a shared workbook has revision headers; of one that is protected too, only the protection is told
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
                                               "the Plotsmith you need to turn off "
                                               "Structure Protection."
                                             : "Brindle Plotsmith: This is a shared workbook. To use the "
                                               "Plotsmith you need to turn off workbook "
                                               "sharing.");
  }

  host_ = xlsx::Application::Create();
  ResetSystem();
  Refresh();
  EXPECT_EQ(Messages().back(), "Brindle Plotsmith: You must have a workbook open to use the Plotsmith.");
  EXPECT_EQ(Messages().size(), 4u);
}

/// A host that is in the middle of something and refuses what it is told.
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
  editing->interactive = false;  // then nobody can be editing, and the property isn't touched
  controller.RefreshPlotsmithData(editing, "", "");
  EXPECT_EQ(Messages().size(), 1u);
}

TEST_F(EntryTest, ARunThatWasBrokenOffIsNotComplete) {
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
  test::EditPart(folder_ / "front.xlsx", "/xl/_rels/workbook.xml.rels",
                 [](S& links) { links.replace(links.rfind("/worksheet\""), 11, "/chartsheet\""); });
  OpenFile(folder_ / "front.xlsx");
  ASSERT_TRUE(host_->ActiveChart());
  Refresh();
  EXPECT_TRUE(Messages().empty()) << Messages()[0];
  EXPECT_NE(std::find(journal_.begin(), journal_.end(), "Chart.ChartType = 51"), journal_.end());
  EXPECT_EQ(journal_.back(), "Application.Run(\"VEXEvents.VEXChartRefreshComplete\")");
  EXPECT_FALSE(colCharts) << "the run has ended";
  // one that can't be read is no active chart, and none of the others' business
  test::EditPart(folder_ / "front.xlsx", "/xl/worksheets/_rels/sheet4.xml.rels",
                 [](S& links) { links += "<"; });
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
  EXPECT_TRUE(oWorkbook) << "this road doesn't let go of the workbook";
  const auto second = xlsx::Application::Create();
  controller.RefreshPlotsmithData(second, "Second", "second.chm");
  EXPECT_EQ(Messages().back(), "Brindle Plotsmith: You must have a workbook open to use the Plotsmith.")
      << "the workbook is the caller's";
  EXPECT_EQ(sCustomAppName, "");
  EXPECT_EQ(App.HelpFile, "second.chm");
  EXPECT_TRUE(oApplication == excel::Ref<excel::Application>(first));
  ResetSystem();
  controller.RefreshChartsForTable(second, table);  // no workbook, and no guard that says so
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

}  // namespace
}  // namespace plotsmith

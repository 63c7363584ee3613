#include <set>

#include "builder/state/BuilderVariables.h"
#include "common/RunVariables.h"
#include "controller/CPlotsmithController.h"
#include "controller/System.h"
#include "forms/UnattendedView.h"
#include "tests/windows/contract/FakeDispatch.h"
#include "tests/windows/contract/PortContract.h"
#include "windows/com/Proxies.h"
#include "windows/excel/WrapApplication.h"
#include "xlsx/Workbook.h"

namespace plotsmith::contract {
namespace {

/// A desktop that stores the texts of message boxes.
class QuietDesktop final : public desktop::Desktop {
 public:
  std::int32_t MsgBox(std::string_view text, desktop::Buttons, desktop::Icon, std::string_view) override {
    said.append(text) += '\n';
    return desktop::kOk;
  }
  void ShowHelp(std::intptr_t, const std::string&, std::int32_t) override {}
  double Timer() override { return 0; }
  void SetMousePointer(std::int32_t) override {}
  std::int32_t UserDefaultLCID() override { return 1033; }

  std::string said;
};

/// The number of Excel objects in the component's module variables. No other objects may be left after an
/// operation.
std::int32_t HeldByVariables() {
  std::set<const void*> held = {oApplication.shared().get(), oWorkbook.shared().get(), mChart.shared().get()};
  if (colChartObjects) {
    for (const auto& chart : *colChartObjects) held.insert(chart.shared().get());
  }
  if (colChartShapes) {
    for (const auto& shape : *colChartShapes) held.insert(shape.shared().get());
  }
  held.erase(nullptr);
  return static_cast<std::int32_t>(held.size());
}

/// The component inside Excel, with the example of countries open.
class LiveProxiesTest : public testing::Test {
 protected:
  void SetUp() override {
    StartSystem(desktop_, std::make_shared<forms::UnattendedView>());
    host_->application->Open(PLOTSMITH_SOURCE_DIR "/examples/countries.xlsx");
    dispatch_ = com::ComPtr<IDispatch>::Attach(automation::NewApplication(host_));
  }
  void TearDown() override {
    StopSystem();
    EXPECT_EQ(com::LiveProxies(), 0);
    EXPECT_EQ(desktop_->said, said_);
  }
  Ref<excel::Application> Excel() { return excel::WrapApplication(dispatch_.Get()); }

  std::shared_ptr<QuietDesktop> desktop_ = std::make_shared<QuietDesktop>();
  automation::HostPtr host_ = std::make_shared<automation::Host>();
  com::ComPtr<IDispatch> dispatch_;
  CPlotsmithController controller_;
  std::string said_;  ///< The expected texts of message boxes.
};

TEST_F(LiveProxiesTest, ARefreshLeavesOnlyTheApplicationAndTheLastChart) {
  controller_.RefreshPlotsmithData(Excel(), "test", "");
  EXPECT_TRUE(oApplication);
  EXPECT_FALSE(oWorkbook);
  EXPECT_FALSE(colChartObjects);
  EXPECT_EQ(com::LiveProxies(), HeldByVariables());
  EXPECT_LE(com::LiveProxies(), 2);
}

TEST_F(LiveProxiesTest, TheWizardLeavesWhatARefreshLeaves) {
  controller_.RunPlotsmith(Excel(), "test", "");
  EXPECT_TRUE(oApplication);
  EXPECT_FALSE(oWorkbook);
  EXPECT_FALSE(colTables);
  EXPECT_FALSE(colCharts);
  EXPECT_FALSE(colChartObjects);
  EXPECT_EQ(com::LiveProxies(), HeldByVariables());
  EXPECT_LE(com::LiveProxies(), 2);
}

TEST_F(LiveProxiesTest, AnErrorLeavesTheWorkbook) {
  FakeDispatch book([](WORD, const DISPPARAMS&, VARIANT* answer, EXCEPINFO*) {
    *answer = com::ToVariant(false).Detach();  // neither protected nor shared
    return S_OK;
  });
  FakeDispatch* self = nullptr;
  FakeDispatch excel([&](WORD, const DISPPARAMS&, VARIANT* answer, EXCEPINFO*) {
    if (self->lastName == L"ActiveChart") return static_cast<HRESULT>(0x800A03EC);
    if (self->lastName == L"ActiveWorkbook") *answer = com::ToVariant(&book).Detach();
    if (self->lastName == L"Interactive") *answer = com::ToVariant(false).Detach();
    return S_OK;
  });
  self = &excel;
  const auto runs = {&CPlotsmithController::RunPlotsmith, &CPlotsmithController::RefreshPlotsmithData};
  for (const auto run : runs) {
    (controller_.*run)(excel::WrapApplication(&excel), "test", "");
    EXPECT_TRUE(oApplication);
    EXPECT_TRUE(oWorkbook);
    EXPECT_FALSE(colChartObjects);
    EXPECT_EQ(com::LiveProxies(), 2);
    EXPECT_EQ(com::LiveProxies(), HeldByVariables());
  }
  const std::string description = "\r\nApplication-defined or object-defined error\n";
  said_ = "CPlotsmithController.RunPlotsmith" + description + "CPlotsmithController.RefreshPlotsmithData" +
          description;
}

TEST_F(LiveProxiesTest, AGuardLeavesOnlyTheApplication) {
  host_->editing = true;
  said_ = "You are currently editing a cell or object. Please finish editing before using the Plotsmith.\n";
  const ULONGLONG began = GetTickCount64();
  controller_.RefreshPlotsmithData(Excel(), "test", "");
  EXPECT_LT(GetTickCount64() - began, 500U) << "the user waits for the answer";
  EXPECT_EQ(com::LiveProxies(), 1);
}

TEST_F(LiveProxiesTest, ChartsOfATableStayLoadedWithTheirWorkbook) {
  std::string table = "VEX_TableRange_Countries";
  controller_.RefreshChartsForTable(Excel(), table);
  EXPECT_TRUE(oWorkbook);
  EXPECT_GT(colChartObjects->Count(), 0);
  EXPECT_EQ(com::LiveProxies(), HeldByVariables());
  std::vector<std::string> oldNames = {"Region"}, newNames = {"Part of the world"};
  controller_.UpdateChartColumnNamesForTable(Excel(), table, oldNames, newNames);
  EXPECT_EQ(com::LiveProxies(), HeldByVariables());
}

TEST_F(LiveProxiesTest, ManyRefreshesLeaveNoMoreThanOne) {
  controller_.RefreshPlotsmithData(Excel(), "test", "");
  const std::int32_t proxies = com::LiveProxies(), objects = automation::counts.objects;
  for (int i = 0; i < 50; ++i) controller_.RefreshPlotsmithData(Excel(), "test", "");
  EXPECT_EQ(com::LiveProxies(), proxies);
  EXPECT_EQ(automation::counts.objects, objects);
}

}  // namespace
}  // namespace plotsmith::contract

#include "controller/System.h"

#include <utility>

#include "builder/ChartRefreshDriver.h"
#include "builder/state/BuilderVariables.h"
#include "common/App.h"
#include "common/RunVariables.h"
#include "common/YieldToHost.h"
#include "controller/PSController.h"
#include "pages/frmBusyPS.h"
#include "runtime/RuntimeError.h"

namespace plotsmith {
namespace {

void ShowBusyForm(std::int32_t lMethodType, const std::string& sID) {
  const auto oBusy = std::make_shared<frmBusyPS>(BusyWork{PopulateAllCharts, PopulateChart, ExecuteRun});
  oBusy->bWorking = false;
  oBusy->sChartID = sID;
  oBusy->lMethodType = lMethodType;
  App.Forms->ShowModal(oBusy);
}

}  // namespace

void StartSystem(runtime::Ref<desktop::Desktop> oDesktop, std::shared_ptr<forms::View> oView) {
  ResetSystem();
  App = {"", std::move(oDesktop), runtime::MakeRef<forms::ModalLoop>(std::move(oView))};
  ShowBusyWindow = ShowBusyForm;
}

void ResetSystem() {
  ResetRunVariables();
  ResetBuilderVariables();
  ResetPages();
  ResetYield();
  runtime::memoryRanOut = false;
}

void StopSystem() {
  ResetSystem();
  App = {};
}

}  // namespace plotsmith

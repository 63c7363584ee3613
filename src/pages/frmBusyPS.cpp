#include "pages/frmBusyPS.h"

#include "builder/ChartRefreshDriver.h"
#include "common/CommonFunctions.h"
#include "controller/PSController.h"

namespace plotsmith {
namespace {

constexpr std::int32_t kTickInterval = 100;  // milliseconds
constexpr std::int32_t kProgressStep = 5;
constexpr std::int32_t kProgressEnd = 100;

}  // namespace

void frmBusyPS::Load() { lInterval_ = kTickInterval; }

void frmBusyPS::Activate() {
  lProgress_ = 0;
  bTimerEnabled_ = true;
  if (!bWorking) {
    bWorking = true;  // a second activation while the work runs must not start it again
    Work();
  }
  bVisible_ = false;
}

void frmBusyPS::Deactivate() {
  lProgress_ = 0;
  bTimerEnabled_ = false;
}

void frmBusyPS::TimerTick() {
  lInterval_ = kTickInterval;
  lProgress_ = lProgress_ < kProgressEnd ? lProgress_ + kProgressStep : 0;
  YieldToHost();
}

void frmBusyPS::Work() {
  switch (lMethodType) {
    case kAllCharts:
      PopulateAllCharts();
      break;
    case kOneChart:
      PopulateChart(sChartID);
      break;
    case kRun:
      ExecuteRun(rMode);
      break;
    default:
      break;
  }
}

}  // namespace plotsmith

#include "pages/frmBusyPS.h"

#include <utility>

#include "common/YieldToHost.h"

namespace plotsmith {
namespace {

constexpr std::int32_t kTickInterval = 100;  // milliseconds
constexpr std::int32_t kProgressStep = 5;

}  // namespace

frmBusyPS::frmBusyPS(BusyWork oWork) : Form("frmBusyPS"), oWork_(std::move(oWork)) {
  SetCaption("Please Wait");
  ProgressBar1.SetAccessibleName("Progress");
  Timer1.Tick = [this] { Timer1_Timer(); };
}

void frmBusyPS::Form_Load() { Timer1.SetInterval(kTickInterval); }

void frmBusyPS::Form_Activate() {
  ProgressBar1.SetValue(forms::ProgressBar::kMin);
  Timer1.SetEnabled(true);
  if (!bWorking) {
    bWorking = true;  // A second activation must not start the operation again.
    Work();
  }
  Hide();
}

void frmBusyPS::Form_Deactivate() {
  ProgressBar1.SetValue(forms::ProgressBar::kMin);
  Timer1.SetEnabled(false);
}

void frmBusyPS::Timer1_Timer() {
  Timer1.SetInterval(kTickInterval);
  const std::int32_t lValue = ProgressBar1.Value();
  ProgressBar1.SetValue(lValue < forms::ProgressBar::kMax ? lValue + kProgressStep
                                                          : forms::ProgressBar::kMin);
  YieldToHost();
}

void frmBusyPS::Work() const {
  switch (lMethodType) {
    case 0:
      oWork_.PopulateAllCharts();
      break;
    case 1:
      oWork_.PopulateChart(sChartID);
      break;
    case 2:
      oWork_.ExecuteRun(rMode);
      break;
    default:
      break;
  }
}

}  // namespace plotsmith

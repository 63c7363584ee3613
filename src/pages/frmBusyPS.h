#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "forms/Form.h"
#include "forms/Plain.h"
#include "forms/Timer.h"

namespace plotsmith {

/// The procedures that the busy window can run. Their modules are above the pages, so the controller hands
/// them in.
struct BusyWork {
  std::function<void()> PopulateAllCharts;
  std::function<void(const std::string& sChartID)> PopulateChart;
  std::function<void(std::int32_t lMode)> ExecuteRun;
};

/// The small modal window that carries a long run of work. It does the work inside of its own activation,
/// keeps a bar moving meanwhile, and hides itself. The caller fills the public members and shows it.
class frmBusyPS final : public forms::Form {
 public:
  explicit frmBusyPS(BusyWork oWork);

  bool bWorking = false;         ///< the work has been started
  std::int32_t lMethodType = 0;  ///< 0 PopulateAllCharts, 1 PopulateChart, 2 ExecuteRun; others do nothing
  std::int32_t rMode = 0;        ///< the mode of a run
  std::string sChartID;          ///< the one chart

  forms::Label WaitLabel{*this, "WaitLabel", nullptr, "Loading . . ."};
  forms::ProgressBar ProgressBar1{*this, "ProgressBar1", nullptr};
  forms::Timer Timer1{*this, "Timer1", false};

  forms::Layout Layout() const override;

 protected:
  void Form_Load() override;
  void Form_Activate() override;
  void Form_Deactivate() override;

 private:
  void Timer1_Timer();
  void Work() const;

  BusyWork oWork_;
};

}  // namespace plotsmith

#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "forms/Form.h"
#include "forms/Plain.h"
#include "forms/Timer.h"

namespace plotsmith {

/// The procedures that the busy window can run. They belong to modules above the pages, so the controller
/// passes them in.
struct BusyWork {
  /// Rebuilds all charts.
  std::function<void()> PopulateAllCharts;
  /// Builds one chart.
  std::function<void(const std::string& sChartID)> PopulateChart;
  /// Executes a run. `lMode` is 0 for the wizard and 1 for the refresh of all charts.
  std::function<void(std::int32_t lMode)> ExecuteRun;
};

/// The small modal window that is shown during a long operation. It performs the operation when it is
/// activated, keeps a progress bar moving, and hides itself at the end. The caller sets the public members
/// and shows the window.
class frmBusyPS final : public forms::Form {
 public:
  /// Makes the window. `oWork` contains the operations that it can run.
  explicit frmBusyPS(BusyWork oWork);

  bool bWorking = false;  ///< Whether the operation has started.
  /// The operation: 0 PopulateAllCharts, 1 PopulateChart, 2 ExecuteRun; other numbers do nothing.
  std::int32_t lMethodType = 0;
  std::int32_t rMode = 0;  ///< The mode of ExecuteRun.
  std::string sChartID;    ///< The chart of PopulateChart.

  /// The controls in tab order.
  ///@{
  forms::Label WaitLabel{*this, "WaitLabel", nullptr, "Loading . . ."};
  forms::ProgressBar ProgressBar1{*this, "ProgressBar1", nullptr};
  forms::Timer Timer1{*this, "Timer1", false};
  ///@}

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

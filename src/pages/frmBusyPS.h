#pragma once

#include <cstdint>
#include <string>

#include "host/forms/Form.h"

namespace plotsmith {

/// The small modal window that carries a long run of work: it does the work inside its own activation, keeps
/// a bar moving meanwhile, and hides itself. The caller fills the public members and shows it.
class frmBusyPS : public forms::Form {
 public:
  static constexpr std::int32_t kAllCharts = 0;
  static constexpr std::int32_t kOneChart = 1;
  static constexpr std::int32_t kRun = 2;

  static constexpr const char* kCaption = "Please Wait";
  static constexpr const char* kWaitLabel = "Loading . . .";

  bool bWorking = false;         ///< the work has been started
  std::int32_t lMethodType = 0;  ///< which work: one of the three above; any other does nothing
  std::int32_t rMode = 0;        ///< the mode of a run
  std::string sChartID;          ///< the one chart

  void Load() override;
  void Activate() override;
  void Deactivate() override;
  bool IsVisible() const override { return bVisible_; }
  std::int32_t TimerInterval() const override { return bTimerEnabled_ ? lInterval_ : 0; }
  void TimerTick() override;

  /// 0 to 100: it shows life, not progress.
  std::int32_t ProgressBarValue() const { return lProgress_; }

 private:
  void Work();

  bool bVisible_ = true;
  bool bTimerEnabled_ = false;
  std::int32_t lInterval_ = 0;
  std::int32_t lProgress_ = 0;
};

}  // namespace plotsmith

#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

#include "forms/Control.h"

namespace plotsmith::forms {

/// A timer, which raises an event repeatedly while it is enabled. Ticks occur only while events are handled;
/// missed ticks are not repeated.
class Timer : public Control {
 public:
  /// The clock of all timers.
  using Clock = std::chrono::steady_clock;

  /// Makes a timer on a form.
  Timer(Form& form, const char* name, bool enabled) : Control(form, name, nullptr) {
    Control::SetEnabled(enabled);
  }
  const char* TypeName() const override { return "Timer"; }

  /// The time between two ticks in milliseconds.
  ///@{
  std::int32_t Interval() const { return interval_; }
  void SetInterval(std::int32_t milliseconds) { interval_ = milliseconds; }
  ///@}
  /// Enables or disables the timer. Enabling starts a new interval.
  void SetEnabled(bool value) {
    Control::SetEnabled(value);
    if (value) started_ = Clock::now();
  }

  /// Raised at the end of each interval.
  Event Tick;

  /// The time until the next tick: zero or negative if it is due, absent if the timer is disabled.
  std::optional<std::chrono::milliseconds> UntilDue() const {
    if (!Enabled() || interval_ <= 0) return std::nullopt;
    return std::chrono::ceil<std::chrono::milliseconds>(started_ + std::chrono::milliseconds(interval_) -
                                                        Clock::now());
  }
  /// Raises Tick and starts a new interval.
  void Fire() {
    started_ = Clock::now();
    Raise(Tick);
  }

 protected:
  bool TakesFocus() const override { return false; }

 private:
  std::int32_t interval_ = 0;
  Clock::time_point started_ = Clock::now();
};

}  // namespace plotsmith::forms

#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

#include "forms/Control.h"

namespace plotsmith::forms {

/// What raises an event again and again while it is on. Ticks come where events are handled, and none is made
/// up for.
class Timer : public Control {
 public:
  using Clock = std::chrono::steady_clock;

  Timer(Form& form, const char* name, bool enabled) : Control(form, name, nullptr) {
    Control::SetEnabled(enabled);
  }
  const char* TypeName() const override { return "Timer"; }

  /// Milliseconds between two ticks.
  ///@{
  std::int32_t Interval() const { return interval_; }
  void SetInterval(std::int32_t milliseconds) { interval_ = milliseconds; }
  ///@}
  void SetEnabled(bool value) {
    Control::SetEnabled(value);
    if (value) started_ = Clock::now();
  }

  Event Tick;

  /// How long until the next tick is due; zero or less when it is, absent while the timer is off.
  std::optional<std::chrono::milliseconds> UntilDue() const {
    if (!Enabled() || interval_ <= 0) return std::nullopt;
    return std::chrono::ceil<std::chrono::milliseconds>(started_ + std::chrono::milliseconds(interval_) -
                                                        Clock::now());
  }
  /// Raises Tick and starts the interval anew.
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

#pragma once

#include <chrono>
#include <memory>
#include <optional>

#include "forms/UnattendedView.h"
#include "windows/views/DisabledWindows.h"

namespace plotsmith::windows {

/// The forms inside Excel. Forms have no windows here yet: the busy window does its work unseen, and a page
/// of the wizard, which waits for a hand, says so in a message box and is closed.
class FormsView final : public forms::View {
 public:
  void Open(forms::Form& form) override;
  void Close(forms::Form& form) override;
  void Wait(forms::EventQueue& queue, std::optional<std::chrono::milliseconds> atMost) override;
  /// Lets the windows of the host work, which can't be used while a form is open.
  void HandleEvents(forms::EventQueue& queue) override;

 private:
  forms::UnattendedView forms_;
  int open_ = 0;
  std::unique_ptr<DisabledWindows> disabledWindows_;  ///< while a form is open
};

}  // namespace plotsmith::windows

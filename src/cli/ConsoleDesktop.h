#pragma once

#include <string>
#include <vector>

#include "host/desktop/Desktop.h"
#include "host/forms/Form.h"

namespace plotsmith::cli {

/// The machine without a desktop: boxes become lines, which are held back until the run is over, and a window
/// lives without being seen.
class ConsoleDesktop final : public desktop::Desktop, public forms::Views {
 public:
  std::int32_t MsgBox(std::string_view text, desktop::Buttons buttons, desktop::Icon icon,
                      std::string_view title) override;
  void DoEvents() override;
  double Timer() override;
  void SetMousePointer(std::int32_t) override {}
  /// From the environment: UserLocale.h.
  std::int32_t UserDefaultLCID() override;

  /// Runs the window's events in their order. Its timer ticks where events are handled, if its interval is
  /// over.
  void ShowModal(forms::Form& form) override;

  /// What the boxes said, a line each: title, colon, text.
  const std::vector<std::string>& Messages() const { return messages_; }

 private:
  std::vector<std::string> messages_;
  std::vector<forms::Form*> shown_;
  double nextTick_ = 0;
};

}  // namespace plotsmith::cli

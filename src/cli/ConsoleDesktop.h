#pragma once

#include <string>
#include <vector>

#include "host/desktop/Desktop.h"

namespace plotsmith::cli {

/// A desktop without a screen. Message boxes become lines, which are printed when the run is over.
class ConsoleDesktop : public desktop::Desktop {
 public:
  std::int32_t MsgBox(std::string_view text, desktop::Buttons buttons, desktop::Icon icon,
                      std::string_view title) override;
  /// Adds a line with the topic, because help can't be shown.
  void ShowHelp(std::intptr_t owner, const std::string& file, std::int32_t topic) override;
  double Timer() override;
  void SetMousePointer(std::int32_t) override {}
  /// The locale from the environment (see UserLocale.h).
  std::int32_t UserDefaultLCID() override;

  /// The texts of the message boxes, one line each: title, colon, text.
  const std::vector<std::string>& Messages() const { return messages_; }
  /// Returns true if a question was answered with OK since the last Forget. The system's only question is the
  /// confirmation of a deletion.
  bool Confirmed() const { return confirmed_; }
  /// Resets Confirmed.
  void Forget() { confirmed_ = false; }

 protected:
  /// Notes that a question was answered with OK.
  void Confirm() { confirmed_ = true; }

 private:
  bool confirmed_ = false;
  std::vector<std::string> messages_;
};

}  // namespace plotsmith::cli

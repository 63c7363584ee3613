#pragma once

#include <string>
#include <vector>

#include "host/desktop/Desktop.h"

namespace plotsmith::cli {

/// The machine without a desktop: boxes become lines, which are held back until the run is over.
class ConsoleDesktop : public desktop::Desktop {
 public:
  std::int32_t MsgBox(std::string_view text, desktop::Buttons buttons, desktop::Icon icon,
                      std::string_view title) override;
  /// There is nothing to show help in; the topic becomes a line.
  void ShowHelp(std::intptr_t owner, const std::string& file, std::int32_t topic) override;
  double Timer() override;
  void SetMousePointer(std::int32_t) override {}
  /// From the environment: UserLocale.h.
  std::int32_t UserDefaultLCID() override;

  /// What the boxes said, a line each: title, colon, text.
  const std::vector<std::string>& Messages() const { return messages_; }

 private:
  std::vector<std::string> messages_;
};

}  // namespace plotsmith::cli

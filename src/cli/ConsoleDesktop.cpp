#include "cli/ConsoleDesktop.h"

#include <ctime>

#include "cli/UserLocale.h"
#include "common/PSConstants.h"
#include "runtime/Strings.h"

namespace plotsmith::cli {
namespace {

/// Seconds between UTC and the local time, as they are at the start.
long LocalOffset() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  return localtime_r(&now, &local) == nullptr ? 0 : local.tm_gmtoff;
}

}  // namespace

std::int32_t ConsoleDesktop::MsgBox(std::string_view text, desktop::Buttons, desktop::Icon,
                                    std::string_view title) {
  const std::string line = runtime::Replace(text, "\r\n", "\n");
  messages_.push_back(std::string(title.empty() ? kProductTitle : title) + ": " + line);
  return desktop::kOk;
}

double ConsoleDesktop::Timer() {
  static const long offset = LocalOffset();
  std::timespec now{};
  clock_gettime(CLOCK_REALTIME_COARSE, &now);
  return static_cast<double>((now.tv_sec + offset) % 86400) + static_cast<double>(now.tv_nsec) / 1e9;
}

std::int32_t ConsoleDesktop::UserDefaultLCID() { return LCIDOfLocale(UserLocale()); }

void ConsoleDesktop::ShowHelp(std::intptr_t, const std::string&, std::int32_t topic) {
  messages_.push_back(std::string(kProductTitle) + ": Help topic " + std::to_string(topic) +
                      " can't be shown without a screen.");
}

}  // namespace plotsmith::cli

#include "cli/ConsoleDesktop.h"

#include <ctime>

#include "cli/Platform.h"
#include "common/PSConstants.h"
#include "runtime/Strings.h"

namespace plotsmith::cli {
namespace {

constexpr std::int64_t kDaySeconds = 86400;

/// Returns the offset of local time from UTC at the start of the program, in seconds.
std::int64_t LocalOffset() {
  const std::time_t now = std::time(nullptr);
  const std::tm* local = std::localtime(&now);
  if (local == nullptr) return 0;
  const std::int64_t ofDay = (local->tm_hour * 60 + local->tm_min) * 60 + local->tm_sec;
  return (ofDay - now % kDaySeconds + kDaySeconds) % kDaySeconds;
}

}  // namespace

std::int32_t ConsoleDesktop::MsgBox(std::string_view text, desktop::Buttons, desktop::Icon,
                                    std::string_view title) {
  const std::string line = runtime::Replace(text, "\r\n", "\n");
  messages_.push_back(std::string(title.empty() ? kProductTitle : title) + ": " + line);
  return desktop::kOk;
}

double ConsoleDesktop::Timer() {
  static const std::int64_t offset = LocalOffset();
  constexpr std::int64_t kSecond = 1'000'000;
  return static_cast<double>((CoarseTime() + offset * kSecond) % (kDaySeconds * kSecond)) / kSecond;
}

std::int32_t ConsoleDesktop::UserDefaultLCID() { return UserLCID(); }

void ConsoleDesktop::ShowHelp(std::intptr_t, const std::string&, std::int32_t topic) {
  messages_.push_back(std::string(kProductTitle) + ": Help topic " + std::to_string(topic) +
                      " can't be shown without a screen.");
}

}  // namespace plotsmith::cli

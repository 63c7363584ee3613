#include <ctime>
#include <unistd.h>

#include "cli/Platform.h"
#include "cli/UserLocale.h"

namespace plotsmith::cli {

std::vector<std::string> Arguments(int argc, char** argv) { return {argv + 1, argv + argc}; }

StandardStreams::StandardStreams() = default;
StandardStreams::~StandardStreams() = default;

std::int64_t CoarseTime() {
#ifdef CLOCK_REALTIME_COARSE
  constexpr clockid_t kClock = CLOCK_REALTIME_COARSE;
#else
  constexpr clockid_t kClock = CLOCK_REALTIME;
#endif
  timespec now{};
  clock_gettime(kClock, &now);
  return std::int64_t{now.tv_sec} * 1'000'000 + now.tv_nsec / 1000;
}

bool IsTerminal(std::FILE* stream) { return isatty(fileno(stream)) == 1; }

std::int32_t UserLCID() { return LCIDOfLocale(UserLocale()); }

}  // namespace plotsmith::cli

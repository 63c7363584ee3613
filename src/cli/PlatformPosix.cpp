#include <unistd.h>

#include "cli/Platform.h"
#include "cli/UserLocale.h"

namespace plotsmith::cli {

std::vector<std::string> Arguments(int argc, char** argv) { return {argv + 1, argv + argc}; }

StandardStreams::StandardStreams() = default;
StandardStreams::~StandardStreams() = default;

bool IsTerminal(std::FILE* stream) { return isatty(fileno(stream)) == 1; }

std::int32_t UserLCID() { return LCIDOfLocale(UserLocale()); }

}  // namespace plotsmith::cli

#include "cli/Command.h"
#include "cli/OtherProgram.h"

namespace plotsmith::cli {

// On Windows the command is the only program of Plotsmith.
std::string FindProgram(const std::string&) { return {}; }

void BecomeProgram(const std::string& path, const std::vector<std::string>&) {
  throw CommandError(exit_code::kUsage, "can't start \"" + path + "\": this system has no such program.");
}

}  // namespace plotsmith::cli

#pragma once

#include <string>
#include <vector>

#include "cli/Streams.h"

namespace plotsmith::cli {

/// Executes the command. `arguments` don't include the program's name. Returns an exit code and throws
/// nothing.
int RunCommandLine(std::vector<std::string> arguments, const Streams& streams);

}  // namespace plotsmith::cli

#pragma once

#include <string>
#include <vector>

#include "cli/Streams.h"

namespace plotsmith::cli {

/// The whole command: `arguments` without the program's name. Answers an exit code; nothing escapes.
int RunCommandLine(std::vector<std::string> arguments, const Streams& streams);

}  // namespace plotsmith::cli

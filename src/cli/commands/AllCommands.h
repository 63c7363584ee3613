#pragma once

#include <memory>
#include <vector>

#include "cli/Command.h"

namespace plotsmith::cli {

/// Makes all verbs but `help`, in the order of the help.
std::vector<std::unique_ptr<Command>> MakeCommands();

}  // namespace plotsmith::cli

#pragma once

#include <string>
#include <vector>

namespace plotsmith::test {

struct CommandResult {
  int code;
  std::string out, err;
};

/// The output of a run that goes to a terminal.
enum class Watched { kNothing, kMessages, kEverything };

/// Runs the command in this process.
CommandResult RunCommand(std::vector<std::string> arguments, const std::string& input = "",
                         Watched watched = Watched::kNothing);

/// Returns the arguments of both lists.
std::vector<std::string> Joined(std::vector<std::string> arguments, const std::vector<std::string>& more);

}  // namespace plotsmith::test

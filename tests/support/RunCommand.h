#pragma once

#include <string>
#include <vector>

namespace plotsmith::test {

struct CommandResult {
  int code;
  std::string out, err;
};

/// Runs the command in this process; on a terminal it shows its progress.
CommandResult RunCommand(std::vector<std::string> arguments, const std::string& input = "",
                         bool terminal = false);

}  // namespace plotsmith::test

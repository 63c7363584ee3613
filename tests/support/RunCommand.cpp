#include "tests/support/RunCommand.h"

#include <sstream>
#include <utility>

#include "cli/line/RunCommandLine.h"

namespace plotsmith::test {

CommandResult RunCommand(std::vector<std::string> arguments, const std::string& input, Watched watched) {
  std::istringstream in(input);
  std::ostringstream out, err;
  const int code = cli::RunCommandLine(
      std::move(arguments), {in, out, err, watched != Watched::kNothing, watched == Watched::kEverything});
  return {code, out.str(), err.str()};
}

std::vector<std::string> Joined(std::vector<std::string> arguments, const std::vector<std::string>& more) {
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

}  // namespace plotsmith::test

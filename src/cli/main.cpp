#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

#include "cli/CommandLine.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  const plotsmith::cli::Streams streams{std::cin, std::cout, std::cerr, isatty(STDERR_FILENO) == 1,
                                        isatty(STDOUT_FILENO) == 1};
  return plotsmith::cli::RunCommandLine(std::vector<std::string>(argv + 1, argv + argc), streams);
}

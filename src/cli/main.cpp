#include <cstdio>
#include <iostream>

#include "cli/Platform.h"
#include "cli/line/CommandLine.h"

int main(int argc, char** argv) {
  using namespace plotsmith::cli;
  std::ios::sync_with_stdio(false);
  const StandardStreams standard;
  const Streams streams{std::cin, std::cout, std::cerr, IsTerminal(stderr), IsTerminal(stdout)};
  return RunCommandLine(Arguments(argc, argv), streams);
}

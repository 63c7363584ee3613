#include <cstdio>
#include <iostream>
#include <optional>

#include "cli/Platform.h"
#include "cli/TerminalText.h"
#include "cli/line/RunCommandLine.h"

int main(int argc, char** argv) {
  using namespace plotsmith::cli;
  std::ios::sync_with_stdio(false);
  const StandardStreams standard;
  const Streams streams{std::cin, std::cout, std::cerr, IsTerminal(stderr), IsTerminal(stdout)};
  std::optional<TerminalText> out, err;
  if (streams.outTerminal) out.emplace(std::cout);
  if (streams.terminal) err.emplace(std::cerr);
  return RunCommandLine(Arguments(argc, argv), streams);
}

#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "cli/Command.h"
#include "cli/Streams.h"

namespace plotsmith::cli {

/// The command line as it is declared, before any arguments: what is parsed, and what the manual is made
/// from.
struct CommandLine {
  CommandLine();

  CLI::App app;
  GlobalOptions options;
  std::vector<std::unique_ptr<Command>> commands;
  std::vector<CLI::App*> verbs;  ///< what each of `commands` has declared
};

/// That no verb has the name, as a sentence.
std::string NoSuchVerb(const std::string& name);

/// The whole command: `arguments` without the program's name. Answers an exit code; nothing escapes.
int RunCommandLine(std::vector<std::string> arguments, const Streams& streams);

}  // namespace plotsmith::cli

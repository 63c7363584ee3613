#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "cli/Command.h"

namespace plotsmith::cli {

/// The declared command line before parsing. The manual is generated from it.
struct CommandLine {
  CommandLine();

  CLI::App app;                                    ///< The parser, with the declarations of all verbs.
  GlobalOptions options;                           ///< The options that apply to all verbs.
  std::vector<std::unique_ptr<Command>> commands;  ///< The verbs.
  std::vector<CLI::App*> verbs;                    ///< The declaration of each of `commands`.
};

/// Returns a sentence that says that no verb has the name.
std::string NoSuchVerb(const std::string& name);

}  // namespace plotsmith::cli

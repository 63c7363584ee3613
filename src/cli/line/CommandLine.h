#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <string>
#include <vector>

#include "cli/Command.h"

namespace plotsmith::cli {

/// The declared command line before parsing. The manual is generated from it.
struct CommandLine {
  /// Declares all verbs with their options.
  CommandLine();
  /// Asks the constructor for the verbs without their options.
  struct VerbsOnly {};
  /// Declares all verbs without their options.
  explicit CommandLine(VerbsOnly);

  /// Declares the options of the verb with this name, or of all verbs if none has the name. To run one verb,
  /// call this once for it: the options of all verbs take as long as a small workbook takes to open.
  void DeclareOptions(const std::string& verb);
  /// Returns the error for a name that no verb has.
  CommandError NoSuchVerb(const std::string& name) const;

  CLI::App app;                                    ///< The parser, with the declarations of all verbs.
  GlobalOptions options;                           ///< The options that apply to all verbs.
  std::vector<std::unique_ptr<Command>> commands;  ///< The verbs.
  std::vector<CLI::App*> verbs;                    ///< The declaration of each of `commands`.
};

}  // namespace plotsmith::cli

#pragma once

#include <string>

#include "cli/Command.h"

namespace plotsmith::cli {

/// Prints the help of the command or of a verb.
class HelpCommand final : public Command {
 public:
  HelpCommand() : Command("help", "Describe a command and its options") {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::string verb_;
};

}  // namespace plotsmith::cli

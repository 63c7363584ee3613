#pragma once

#include <string>

#include "cli/Command.h"

namespace plotsmith::cli {

/// Prints the help of the command or of a verb.
class HelpCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& app) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::string verb_;
};

}  // namespace plotsmith::cli

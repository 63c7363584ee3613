#pragma once

#include <vector>

#include "cli/Command.h"

namespace plotsmith::cli {

/// Shows a value in a number format.
class FormatCommand final : public Command {
 public:
  FormatCommand() : Command("format", "Show a value in a number format") {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::vector<std::string> arguments_;
  bool tsv_ = false;
  bool date1904_ = false;
};

}  // namespace plotsmith::cli

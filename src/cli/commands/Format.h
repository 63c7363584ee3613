#pragma once

#include <vector>

#include "cli/Command.h"

namespace plotsmith::cli {

/// Shows a value in a number format.
class FormatCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& app) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::vector<std::string> arguments_;
  bool tsv_ = false;
  bool date1904_ = false;
};

}  // namespace plotsmith::cli

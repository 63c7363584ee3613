#pragma once

#include "cli/Command.h"

namespace plotsmith::cli {

/// Lists the tables for charts.
class TablesCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& app) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::string book_;
  bool json_ = false;
};

}  // namespace plotsmith::cli

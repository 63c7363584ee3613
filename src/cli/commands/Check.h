#pragma once

#include "cli/Command.h"

namespace plotsmith::cli {

/// Lists the problems in the definitions and tables of a workbook. Changes nothing.
class CheckCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& app) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::string book_;
  bool json_ = false;
};

}  // namespace plotsmith::cli

#pragma once

#include "cli/Command.h"

namespace plotsmith::cli {

/// Lists the charts that the workbook defines.
class ChartsCommand final : public Command {
 public:
  CLI::App* Declare(CLI::App& app) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::string book_;
  bool json_ = false;
};

}  // namespace plotsmith::cli

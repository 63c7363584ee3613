#pragma once

#include "cli/Command.h"

namespace plotsmith::cli {

/// Lists the charts that the workbook defines.
class ChartsCommand final : public Command {
 public:
  ChartsCommand() : Command("charts", "List the charts that a workbook defines") {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::string book_;
  bool json_ = false;
};

}  // namespace plotsmith::cli

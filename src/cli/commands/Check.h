#pragma once

#include "cli/Command.h"

namespace plotsmith::cli {

/// Lists the problems in the definitions and tables of a workbook. Changes nothing.
class CheckCommand final : public Command {
 public:
  CheckCommand() : Command("check", "List the problems in definitions and tables, and change nothing") {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::string book_;
  bool json_ = false;
};

}  // namespace plotsmith::cli

#pragma once

#include "cli/Command.h"

namespace plotsmith::cli {

/// Lists the tables for charts.
class TablesCommand final : public Command {
 public:
  TablesCommand() : Command("tables", "List the tables of a workbook, with their columns") {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::string book_;
  bool json_ = false;
};

}  // namespace plotsmith::cli

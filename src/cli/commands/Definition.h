#pragma once

#include "cli/Command.h"

namespace plotsmith::cli {

/// Prints the definition of a chart after it was read back from the chart.
class DefinitionCommand final : public Command {
 public:
  DefinitionCommand() : Command("definition", "Print the definition of a chart") {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  std::string book_;
  std::string chart_;
};

}  // namespace plotsmith::cli

#pragma once

#include <string>

#include "cli/Command.h"
#include "cli/wizard/ChartOptions.h"
#include "cli/wizard/PlayVerb.h"

namespace plotsmith::cli {

/// Makes a chart in the wizard.
class NewChartCommand final : public Command {
 public:
  NewChartCommand() : Command("new", "Make a new chart from a table") {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  VerbOptions verb_;
  ChartOptions chart_;
};

}  // namespace plotsmith::cli

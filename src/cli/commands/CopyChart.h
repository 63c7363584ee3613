#pragma once

#include <string>

#include "cli/Command.h"
#include "cli/wizard/ChartOptions.h"
#include "cli/wizard/PlayVerb.h"

namespace plotsmith::cli {

/// Copies a chart in the wizard.
class CopyChartCommand final : public Command {
 public:
  CopyChartCommand() : Command("copy", "Copy a chart; settings without an option are copied") {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  VerbOptions verb_;
  std::string id_;  ///< The id or the name of the chart.
  ChartOptions chart_;
};

}  // namespace plotsmith::cli

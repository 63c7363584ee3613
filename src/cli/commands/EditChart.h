#pragma once

#include <string>

#include "cli/Command.h"
#include "cli/wizard/ChartOptions.h"
#include "cli/wizard/ChartScript.h"
#include "cli/wizard/PlayVerb.h"

namespace plotsmith::cli {

/// Changes or copies a chart in the wizard.
class EditChartCommand final : public Command {
 public:
  /// Makes the command. `work` is kModify or kCopy.
  EditChartCommand(const char* name, const char* description, ChartWork work)
      : Command(name, description), work_(work) {}
  void DeclareOptions(CLI::App& verb) override;
  int Run(const GlobalOptions& options, const Streams& streams) override;

 private:
  ChartWork work_;
  VerbOptions verb_;
  std::string id_;  ///< The id or the name of the chart.
  ChartOptions chart_;
};

}  // namespace plotsmith::cli

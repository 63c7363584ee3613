#include "cli/commands/NewChart.h"

#include <CLI/CLI.hpp>

#include "cli/wizard/ChartScript.h"

namespace plotsmith::cli {

void NewChartCommand::DeclareOptions(CLI::App& verb) {
  DeclareBook(verb, verb_);
  DeclareChartOptions(verb, chart_);
  verb.get_option("--table")->required();
  verb.get_option("--type")->required();
  DeclarePlaceOptions(verb, chart_);
  DeclareOutput(verb, verb_);
}

int NewChartCommand::Run(const GlobalOptions& options, const Streams& streams) {
  CheckChartOptions(chart_);
  ChartScript script(ChartWork::kNew, "", chart_);
  return PlayVerb(script, verb_, options, streams);
}

}  // namespace plotsmith::cli

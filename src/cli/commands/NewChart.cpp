#include "cli/commands/NewChart.h"

#include <CLI/CLI.hpp>

#include "cli/wizard/ChartScript.h"

namespace plotsmith::cli {

CLI::App* NewChartCommand::Declare(CLI::App& app) {
  CLI::App* verb = app.add_subcommand("new", "Make a new chart from a table");
  DeclareBook(*verb, verb_);
  DeclareChartOptions(*verb, chart_);
  verb->get_option("--table")->required();
  verb->get_option("--type")->required();
  DeclarePlaceOptions(*verb, chart_);
  DeclareOutput(*verb, verb_);
  return verb;
}

int NewChartCommand::Run(const GlobalOptions& options, const Streams& streams) {
  CheckChartOptions(chart_);
  ChartScript script(ChartWork::kNew, "", chart_);
  return PlayVerb(script, verb_, options, streams);
}

}  // namespace plotsmith::cli

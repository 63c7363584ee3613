#include "cli/commands/ModifyChart.h"

#include <CLI/CLI.hpp>

#include "cli/wizard/ChartScript.h"

namespace plotsmith::cli {

CLI::App* ModifyChartCommand::Declare(CLI::App& app) {
  CLI::App* verb = app.add_subcommand("modify", "Change a chart; settings without an option don't change");
  DeclareBook(*verb, verb_);
  verb->add_option("CHART", id_, "The id or the name of the chart")->required();
  DeclareChartOptions(*verb, chart_);
  DeclareOutput(*verb, verb_);
  return verb;
}

int ModifyChartCommand::Run(const GlobalOptions& options, const Streams& streams) {
  CheckChartOptions(chart_);
  ChartScript script(ChartWork::kModify, id_, chart_);
  return PlayVerb(script, verb_, options, streams);
}

}  // namespace plotsmith::cli

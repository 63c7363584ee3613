#include "cli/commands/CopyChart.h"

#include <CLI/CLI.hpp>

#include "cli/wizard/ChartScript.h"

namespace plotsmith::cli {

CLI::App* CopyChartCommand::Declare(CLI::App& app) {
  CLI::App* verb = app.add_subcommand("copy", "Copy a chart; settings without an option are copied");
  DeclareBook(*verb, verb_);
  verb->add_option("CHART", id_, "The id or the name of the chart")->required();
  DeclareChartOptions(*verb, chart_);
  DeclarePlaceOptions(*verb, chart_);
  DeclareOutput(*verb, verb_);
  return verb;
}

int CopyChartCommand::Run(const GlobalOptions& options, const Streams& streams) {
  CheckChartOptions(chart_);
  ChartScript script(ChartWork::kCopy, id_, chart_);
  return PlayVerb(script, verb_, options, streams);
}

}  // namespace plotsmith::cli

#include "cli/commands/DeleteCharts.h"

#include <CLI/CLI.hpp>

#include "cli/wizard/ChartScript.h"

namespace plotsmith::cli {

CLI::App* DeleteChartsCommand::Declare(CLI::App& app) {
  CLI::App* verb = app.add_subcommand("delete", "Delete charts, with their definitions and comment boxes");
  DeclareBook(*verb, verb_);
  verb->add_option("CHART", charts_, "The id or the name of a chart")->required();
  DeclareOutput(*verb, verb_);
  return verb;
}

int DeleteChartsCommand::Run(const GlobalOptions& options, const Streams& streams) {
  DeleteScript script(charts_);
  return PlayVerb(script, verb_, options, streams);
}

}  // namespace plotsmith::cli

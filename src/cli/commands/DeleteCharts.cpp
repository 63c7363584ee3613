#include "cli/commands/DeleteCharts.h"

#include <CLI/CLI.hpp>

#include "cli/wizard/ChartScript.h"

namespace plotsmith::cli {

void DeleteChartsCommand::DeclareOptions(CLI::App& verb) {
  DeclareBook(verb, verb_);
  verb.add_option("CHART", charts_, "The id or the name of a chart")->required();
  DeclareOutput(verb, verb_);
}

int DeleteChartsCommand::Run(const GlobalOptions& options, const Streams& streams) {
  DeleteScript script(charts_);
  return PlayVerb(script, verb_, options, streams);
}

}  // namespace plotsmith::cli

#include "cli/commands/EditChart.h"

#include <CLI/CLI.hpp>

namespace plotsmith::cli {

void EditChartCommand::DeclareOptions(CLI::App& verb) {
  DeclareBook(verb, verb_);
  verb.add_option("CHART", id_, "The id or the name of the chart")->required();
  DeclareChartOptions(verb, chart_);
  if (work_ == ChartWork::kCopy) DeclarePlaceOptions(verb, chart_);
  DeclareOutput(verb, verb_);
}

int EditChartCommand::Run(const GlobalOptions& options, const Streams& streams) {
  CheckChartOptions(chart_);
  ChartScript script(work_, id_, chart_);
  return PlayVerb(script, verb_, options, streams);
}

}  // namespace plotsmith::cli

#include "cli/commands/CopyChart.h"

#include <CLI/CLI.hpp>

#include "cli/wizard/ChartScript.h"

namespace plotsmith::cli {

void CopyChartCommand::DeclareOptions(CLI::App& verb) {
  DeclareBook(verb, verb_);
  verb.add_option("CHART", id_, "The id or the name of the chart")->required();
  DeclareChartOptions(verb, chart_);
  DeclarePlaceOptions(verb, chart_);
  DeclareOutput(verb, verb_);
}

int CopyChartCommand::Run(const GlobalOptions& options, const Streams& streams) {
  CheckChartOptions(chart_);
  ChartScript script(ChartWork::kCopy, id_, chart_);
  return PlayVerb(script, verb_, options, streams);
}

}  // namespace plotsmith::cli

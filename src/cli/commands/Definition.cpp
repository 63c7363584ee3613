#include "cli/commands/Definition.h"

#include <CLI/CLI.hpp>

#include "cli/ChartLookup.h"
#include "cli/Failures.h"
#include "cli/Session.h"
#include "common/RunVariables.h"

namespace plotsmith::cli {

void DefinitionCommand::DeclareOptions(CLI::App& verb) {
  verb.add_option("BOOK", book_, "The workbook")->required();
  verb.add_option("CHART", chart_, "The id or the name of the chart")->required();
}

int DefinitionCommand::Run(const GlobalOptions& options, const Streams& streams) {
  Session session(book_, options, streams);
  session.LoadTablesAndCharts();
  const int code = session.Finish();
  const ChartNames charts = LoadedCharts();
  const auto places = FindCharts(charts, chart_);
  if (places.size() > 1) {
    throw CommandError(exit_code::kUsage, SeveralCharts(charts, places, chart_) + ".");
  }
  if (places.empty()) {
    std::vector<std::string> ids;
    for (const ChartName& chart : charts) ids.push_back(chart.id);
    throw NotInBook(book_, "chart", chart_, ids);
  }
  streams.out << colCharts->Item(charts[places.front()].id).xml() << '\n';
  return code;
}

}  // namespace plotsmith::cli

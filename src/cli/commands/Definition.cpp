#include "cli/commands/Definition.h"

#include <algorithm>

#include "cli/Session.h"
#include "common/CommonFunctions.h"
#include "common/RunVariables.h"
#include "runtime/Strings.h"

namespace plotsmith::cli {

CLI::App* DefinitionCommand::Declare(CLI::App& app) {
  CLI::App* verb = app.add_subcommand("definition", "Print the definition of a chart");
  verb->add_option("BOOK", book_, "The workbook")->required();
  verb->add_option("CHART", chart_, "The chart's id or name")->required();
  return verb;
}

int DefinitionCommand::Run(const GlobalOptions& options, const Streams& streams) {
  Session session(book_, options, streams);
  session.LoadTablesAndCharts();
  const int code = session.Finish();
  const auto find = [&](const auto& isMeant) {
    return std::find_if(colCharts->begin(), colCharts->end(), [&](const dom::IXMLDOMDocument2& document) {
      return isMeant(document.selectSingleNode("chart"));
    });
  };
  // the id before the name, which may be another chart's id
  auto found =
      find([&](const dom::IXMLDOMElement& chart) { return GetAttributeText(chart, "id") == chart_; });
  if (found == colCharts->end()) {
    found = find([&](const dom::IXMLDOMElement& chart) {
      return runtime::EqualsIgnoreCase(GetAttributeText(chart, "name"), chart_);
    });
  }
  if (found == colCharts->end()) {
    throw CommandError(exit_code::kUsage, "\"" + book_ + "\" has no chart \"" + chart_ +
                                              "\" (plotsmith charts lists those it has).");
  }
  streams.out << (*found).xml() << '\n';
  return code;
}

}  // namespace plotsmith::cli

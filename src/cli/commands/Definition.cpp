#include "cli/commands/Definition.h"

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
  // an id is one chart's alone, a name may be another's id
  const auto byId = [&](const dom::IXMLDOMElement& chart) { return GetAttributeText(chart, "id") == chart_; };
  const auto byName = [&](const dom::IXMLDOMElement& chart) {
    return runtime::EqualsIgnoreCase(GetAttributeText(chart, "name"), chart_);
  };
  const auto print = [&](const auto& isMeant) {
    for (const auto& document : *colCharts) {
      if (!isMeant(document.selectSingleNode("chart"))) continue;
      streams.out << document.xml() << '\n';
      return true;
    }
    return false;
  };
  if (print(byId) || print(byName)) return code;
  throw CommandError(exit_code::kUsage, "\"" + book_ + "\" has no chart \"" + chart_ +
                                            "\" (plotsmith charts lists those it has).");
}

}  // namespace plotsmith::cli

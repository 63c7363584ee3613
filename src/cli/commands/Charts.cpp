#include "cli/commands/Charts.h"

#include <nlohmann/json.hpp>

#include "cli/Session.h"
#include "cli/check/SourceCheck.h"
#include "common/CommonFunctions.h"
#include "common/ErrorBlocks.h"
#include "common/RunVariables.h"
#include "dom/Dom.h"
#include "host/excel/Excel.h"

namespace plotsmith::cli {
namespace {

using Json = nlohmann::ordered_json;

/// How a chart stands, as its definition tells and the chart shows.
const char* State(const dom::IXMLDOMElement& chart) {
  if (GetAttributeText(chart, "type") == "unknown") return "unsupported type";
  if (GetAttributeText(chart, "table-corrupted") == "yes") return "table no longer fits";
  // A chart that can't be built has lost its series. It isn't crosshatched if its area has a filling of its
  // own, and the wizard mends a chart without storing that it is crosshatched no more.
  const bool drawn = ValueOr(false, [&] {
    return colChartObjects->Item(GetAttributeText(chart, "id"))->SeriesCollection()->Count() > 0;
  });
  if (drawn) return "ok";
  return GetAttributeText(chart, "chart-area-crosshatched") == "yes" ? "unavailable" : "not drawn";
}

Json Describe(const dom::IXMLDOMElement& chart) {
  return {{"id", GetAttributeText(chart, "id")},
          {"name", GetAttributeText(chart, "name")},
          {"title", GetAttributeText(chart, "title")},
          {"type", GetAttributeText(chart, "type")},
          {"chartSheet", GetAttributeText(chart, "chart-worksheet")},
          {"tableSheet", GetAttributeText(chart, "table-worksheet")},
          {"table", GetAttributeText(chart, "table-id")},
          {"state", State(chart)}};
}

/// What makes the picture wrong, a line each, in the words of a refresh.
void PrintFindings(std::ostream& out, xlsx::Workbook& book, const dom::IXMLDOMDocument2& document) {
  for (const Finding& finding : CheckSources(book, document.selectSingleNode("chart"), "")) {
    out << "    " << (finding.place.empty() ? "" : finding.place + ": ") << finding.sentence << '\n';
  }
}

}  // namespace

CLI::App* ChartsCommand::Declare(CLI::App& app) {
  CLI::App* verb = app.add_subcommand("charts", "List the charts that a workbook defines");
  verb->add_option("BOOK", book_, "The workbook")->required();
  verb->add_flag("--json", json_, "As JSON");
  return verb;
}

int ChartsCommand::Run(const GlobalOptions& options, const Streams& streams) {
  Session session(book_, options, streams);
  session.LoadTablesAndCharts();
  const int code = session.Finish();
  Json list = Json::array();
  for (const auto& document : *colCharts) list.push_back(Describe(document.selectSingleNode("chart")));
  if (json_) {
    streams.out << list.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
    return code;
  }
  for (const Json& chart : list) {
    const auto text = [&](const char* key) { return chart[key].get<std::string>(); };
    streams.out << text("id") << "  \"" << text("name") << "\"\n  " << text("type") << " chart on sheet "
                << text("chartSheet") << ", from table " << text("table") << " on sheet "
                << text("tableSheet") << "\n  " << text("state") << '\n';
    PrintFindings(streams.out, session.Book(), colCharts->Item(chart["id"].get<std::string>()));
  }
  return code;
}

}  // namespace plotsmith::cli

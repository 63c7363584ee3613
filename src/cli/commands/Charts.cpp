#include "cli/commands/Charts.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "cli/ChartState.h"
#include "cli/Session.h"
#include "cli/check/DefinitionCheck.h"
#include "cli/check/TableCheck.h"
#include "common/Documents.h"
#include "common/ErrorBlocks.h"
#include "common/RunVariables.h"
#include "dom/Dom.h"
#include "host/excel/Excel.h"

namespace plotsmith::cli {
namespace {

using Json = nlohmann::ordered_json;

/// Returns the problems in a chart's definition and cells, as a refresh reports them.
Findings FindingsOf(const dom::IXMLDOMElement& chart, const std::vector<CheckedDefinition>& checked,
                    xlsx::Workbook& book) {
  const std::string id = GetAttributeText(chart, "id");
  Findings findings;
  for (const CheckedDefinition& definition : checked) {
    if (definition.id == id && !definition.IsLost() && !definition.IsUnread()) findings = definition.findings;
  }
  Append(findings, CheckUsedCells(book, chart));
  return findings;
}

/// Returns sentences that explain the state of a chart.
std::string ReasonOf(ChartState state, const Findings& findings) {
  if (state == ChartState::kOk) return {};
  // A chart that was never refreshed waits for a refresh, regardless of its findings.
  std::string sentences = state == ChartState::kNotDrawn ? StateReason(state) : "";
  for (const Finding& finding : findings) sentences += (sentences.empty() ? "" : " ") + finding.sentence;
  return sentences.empty() ? StateReason(state) : sentences;
}

Json Describe(const dom::IXMLDOMElement& chart, const std::vector<CheckedDefinition>& checked,
              xlsx::Workbook& book) {
  const std::string id = GetAttributeText(chart, "id");
  const Findings findings = FindingsOf(chart, checked, book);
  Json list = Json::array();
  for (const Finding& finding : findings) {
    list.push_back({{"place", finding.place}, {"sentence", finding.sentence}});
  }
  const ChartState state =
      StateOf(chart, ValueOr(excel::Ref<excel::Chart>(), [&] { return colChartObjects->Item(id); }));
  return {{"id", id},
          {"name", GetAttributeText(chart, "name")},
          {"title", GetAttributeText(chart, "title")},
          {"type", GetAttributeText(chart, "type")},
          {"chartSheet", GetAttributeText(chart, "chart-worksheet")},
          {"tableSheet", GetAttributeText(chart, "table-worksheet")},
          {"table", GetAttributeText(chart, "table-id")},
          {"state", StateName(state)},
          {"reason", ReasonOf(state, findings)},
          {"findings", std::move(list)}};
}

/// Reports the invalid rows of the sheet of definitions. Returns false if there are none.
bool ReportUnlisted(const std::vector<CheckedDefinition>& checked, std::ostream& err) {
  bool isAny = false;
  for (const CheckedDefinition& definition : checked) {
    if (!definition.IsLost() && !definition.IsUnread()) continue;
    const Finding& finding = definition.findings.front();
    err << "plotsmith: " << finding.place << ": " << SentenceBeforeRun(finding) << '\n';
    isAny = true;
  }
  return isAny;
}

}  // namespace

void ChartsCommand::DeclareOptions(CLI::App& verb) {
  verb.add_option("BOOK", book_, "The workbook")->required();
  verb.add_flag("--json", json_, "Print JSON");
}

int ChartsCommand::Run(const GlobalOptions& options, const Streams& streams) {
  Session session(book_, options, streams);
  session.LoadTables();
  const auto checked = CheckDefinitions(session.Book());  // Check before the load, which drops invalid rows.
  session.LoadCharts();
  int code = session.Finish();
  if (ReportUnlisted(checked, streams.err)) code = exit_code::kDoneWithMessages;
  Json list = Json::array();
  for (const auto& document : *colCharts) {
    list.push_back(Describe(document.selectSingleNode("chart"), checked, session.Book()));
  }
  if (json_) {
    streams.out << list.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
    return code;
  }
  if (list.empty()) streams.out << "There are no charts of Plotsmith.\n";
  for (const Json& chart : list) {
    const auto text = [&](const char* key) { return chart[key].get<std::string>(); };
    streams.out << text("id") << "  \"" << text("name") << "\"\n  " << text("type") << " chart on sheet "
                << text("chartSheet") << ", from table " << text("table") << " on sheet "
                << text("tableSheet") << "\n  " << text("state") << '\n';
    for (const Json& finding : chart["findings"]) {
      const std::string place = finding["place"];
      streams.out << "    " << (place.empty() ? "" : place + ": ") << finding["sentence"].get<std::string>()
                  << '\n';
    }
  }
  return code;
}

}  // namespace plotsmith::cli

#include "cli/commands/Check.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <nlohmann/json.hpp>

#include "cli/Session.h"
#include "cli/TableFacts.h"
#include "cli/check/BubbleLabels.h"
#include "cli/check/DefinitionCheck.h"
#include "cli/check/ReadBackCheck.h"
#include "cli/check/TableCheck.h"
#include "cli/check/Words.h"
#include "common/RunVariables.h"
#include "common/Values.h"
#include "runtime/RuntimeError.h"

namespace plotsmith::cli {
namespace {

using Json = nlohmann::ordered_json;

constexpr const char* kNoDefinitions = "There are no definitions of charts.";
constexpr const char* kNoTables =
    "There are no tables. To make one, name a sheet Data1, with headings in row 1 and data below them; or "
    "give the data a name that begins with VEX_TableRange, with a title in its first cell and headings in "
    "its third row.";

struct Report {
  std::vector<CheckedDefinition> definitions;
  std::vector<CheckedTable> tables;
  Findings strayCharts;

  bool IsFine() const {
    const auto isFine = [](const auto& checked) { return checked.findings.empty(); };
    return strayCharts.empty() && std::all_of(definitions.begin(), definitions.end(), isFine) &&
           std::all_of(tables.begin(), tables.end(), isFine);
  }
};

Json FactsOf(const Findings& findings) {
  Json list = Json::array();
  for (const Finding& finding : findings) {
    list.push_back({{"place", finding.place},
                    {"kind", KindName(finding.kind)},
                    {"severity", SeverityName(finding.severity)},
                    {"sentence", SentenceBeforeRun(finding)}});
  }
  return list;
}

Json FactsOf(const CheckedDefinition& definition) {
  return {{"place", definition.place},
          {"id", definition.id},
          {"name", definition.name},
          {"type", definition.type},
          {"table", definition.table},
          {"chartSheet", definition.chartSheet},
          {"findings", FactsOf(definition.findings)}};
}

Json FactsOf(const CheckedTable& checked) {
  Json facts = checked.table ? TableFacts(checked.table) : Json{{"id", checked.id}};
  facts["findings"] = FactsOf(checked.findings);
  return facts;
}

template <class List>
Json FactsOfAll(const List& list) {
  Json described = Json::array();
  for (const auto& item : list) described.push_back(FactsOf(item));
  return described;
}

/// Prints each finding on a line.
void PrintLines(std::ostream& out, const Findings& findings) {
  for (const Finding& finding : findings) {
    out << "  " << finding.place << ": " << SentenceBeforeRun(finding) << '\n';
  }
}

/// Ends the line with the subject, and prints each finding on a line below it.
void Print(std::ostream& out, const Findings& findings) {
  out << (findings.empty() ? ": ok\n" : ":\n");
  PrintLines(out, findings);
}

void Print(std::ostream& out, const CheckedDefinition& definition) {
  std::string line = definition.place;
  if (!definition.id.empty()) line += "  " + definition.id;
  if (!definition.name.empty()) line += "  \"" + definition.name + '"';
  if (!definition.type.empty()) line += "  " + definition.type + " chart";
  if (!definition.chartSheet.empty()) line += " on sheet " + definition.chartSheet;
  if (!definition.table.empty()) line += ", from table " + definition.table;
  out << OneLine(line);
  Print(out, definition.findings);
}

void Print(std::ostream& out, const CheckedTable& checked) {
  std::string line = checked.id;
  if (checked.table) {
    const Json facts = TableFacts(checked.table);
    line += "  \"" + facts["name"].get<std::string>() + "\"  " + TablePlace(facts);
    const char* separator = "; ";
    for (const Json& column : facts["columns"]) {
      line += separator + column["kind"].get<std::string>() + ' ' + column["name"].get<std::string>();
      separator = ", ";
    }
  }
  out << OneLine(line);
  Print(out, checked.findings);
}

void Print(std::ostream& out, const Report& report) {
  for (const CheckedDefinition& definition : report.definitions) Print(out, definition);
  if (report.definitions.empty()) out << kNoDefinitions << '\n';
  PrintLines(out, report.strayCharts);
  for (const CheckedTable& table : report.tables) Print(out, table);
  if (report.tables.empty()) out << kNoTables << '\n';
}

/// Finds the differences between definitions and their charts, and labels that prevent the legend of a bubble
/// chart. This needs the loaded charts, which changes the workbook in memory.
void CheckDrawn(Session& session, std::vector<CheckedDefinition>& definitions) {
  session.LoadCharts();
  auto differences = CheckReadBack(session.Book(), definitions, AxisTitles::kCompared);
  for (CheckedDefinition& definition : definitions) {
    Append(definition.findings, std::move(differences[definition.id]));
    if (definition.IsLost() || definition.IsUnread() || !CollectionHasKey(definition.table, colTables))
      continue;
    Append(definition.findings,
           CheckBubbleLabels(session.Book(), definition.document.selectSingleNode("chart"),
                             colTables->Item(definition.table).selectSingleNode("table")));
  }
}

}  // namespace

void CheckCommand::DeclareOptions(CLI::App& verb) {
  verb.add_option("BOOK", book_, "The workbook")->required();
  verb.add_flag("--json", json_, "Print JSON");
}

int CheckCommand::Run(const GlobalOptions& options, const Streams& streams) {
  Session session(book_, options, streams);
  Report report;
  try {
    session.LoadTables();
    report = {CheckDefinitions(session.Book()), CheckTables(session.Book()), {}};
    report.strayCharts = CheckStrayCharts(session.Book(), report.definitions);
    if (!report.definitions.empty()) CheckDrawn(session, report.definitions);
  } catch (const runtime::RuntimeError&) {
    session.Finish();  // This reports damage.
    throw;
  }
  const int code = session.Finish();
  if (json_) {
    const Json json = {{"definitions", FactsOfAll(report.definitions)},
                       {"strayCharts", FactsOf(report.strayCharts)},
                       {"tables", FactsOfAll(report.tables)}};
    streams.out << json.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
  } else {
    Print(streams.out, report);
  }
  return report.IsFine() ? code : exit_code::kDoneWithMessages;
}

}  // namespace plotsmith::cli

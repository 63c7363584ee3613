#include "cli/commands/RenameColumns.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <set>

#include "cli/Session.h"
#include "cli/check/Words.h"
#include "common/Documents.h"
#include "common/RunVariables.h"
#include "common/Values.h"
#include "controller/CPlotsmithController.h"
#include "dom/Dom.h"
#include "runtime/Strings.h"

namespace plotsmith::cli {
namespace {

/// A private-use character, which no column name contains.
constexpr const char* kAside = "\xEE\x80\x80";

std::vector<Renaming> Parse(const std::vector<std::string>& texts) {
  std::vector<Renaming> renamings;
  std::set<std::string> old;
  for (const std::string& text : texts) {
    const auto sign = text.find('=');
    if (sign == std::string::npos || sign == 0 || sign + 1 == text.size()) {
      throw CommandError(exit_code::kUsage,
                         Quoted(text) + " isn't a renaming; it must have the form OLD=NEW.");
    }
    renamings.emplace_back(text.substr(0, sign), text.substr(sign + 1));
    if (!old.insert(renamings.back().first).second) {
      throw CommandError(exit_code::kUsage,
                         "the column " + Quoted(renamings.back().first) + " is renamed twice.");
    }
  }
  return renamings;
}

/// Returns true if the table has a column with the name, ignoring case as charts do.
bool HasColumn(const std::string& table, const std::string& name) {
  if (!colTables || !CollectionHasKey(table, colTables)) return false;
  const auto columns = colTables->Item(table).selectSingleNode("table").childElements();
  return std::any_of(columns.begin(), columns.end(), [&](const dom::IXMLDOMElement& column) {
    return runtime::EqualsIgnoreCase(GetAttributeText(column, "name"), name);
  });
}

/// Returns the columns that the charts of the table use, each once, with their new names.
std::vector<std::string> ChartedColumns(const std::string& table) {
  std::vector<std::string> names;
  for (const dom::IXMLDOMDocument2& document : *colCharts) {
    if (GetAttributeText(document.selectSingleNode("chart"), "table-id") != table) continue;
    for (const dom::IXMLDOMElement& column : document.selectNodes("//column")) {
      const std::string name = GetAttributeText(column, "name");
      if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
    }
  }
  return names;
}

/// Returns the columns that the charts used before the renamings.
std::vector<std::string> BeforeRenamings(std::vector<std::string> columns,
                                         const std::vector<Renaming>& renamings) {
  const std::vector<std::string> after = columns;
  for (std::string& column : columns) {
    const auto made = std::find_if(renamings.begin(), renamings.end(), [&](const Renaming& renaming) {
      return renaming.second == column &&
             std::find(after.begin(), after.end(), renaming.first) == after.end();
    });
    if (made != renamings.end()) column = made->first;
  }
  return columns;
}

}  // namespace

std::vector<Renaming> InSteps(std::vector<Renaming> renamings) {
  std::vector<Renaming> steps;
  std::erase_if(renamings, [](const Renaming& renaming) { return renaming.first == renaming.second; });
  while (!renamings.empty()) {
    const auto isFree = [&](const Renaming& renaming) {
      return std::none_of(renamings.begin(), renamings.end(),
                          [&](const Renaming& other) { return other.first == renaming.second; });
    };
    const auto next = std::find_if(renamings.begin(), renamings.end(), isFree);
    if (next != renamings.end()) {
      steps.push_back(std::move(*next));
      renamings.erase(next);
    } else {
      // Only cycles are left.
      const std::string aside = renamings.front().first + kAside;
      steps.emplace_back(renamings.front().first, aside);
      renamings.front().first = aside;
    }
  }
  return steps;
}

void RenameColumnsCommand::DeclareOptions(CLI::App& verb) {
  verb.add_option("BOOK", book_, "The workbook (.xlsx, .xlsm, .xltx or .xltm)")->required();
  verb.add_option("OLD=NEW", renamings_, "The old and the new name of a column")->required();
  verb.add_option("--table", table_, "The id of the table")->required()->type_name("ID");
  verb.add_option("-o,--output", output_, kOutputDescription)->type_name("FILE");
}

int RenameColumnsCommand::Run(const GlobalOptions& options, const Streams& streams) {
  RequireTableId(table_);
  std::vector<std::string> oldNames, newNames;
  const auto renamings = Parse(renamings_);
  for (auto& [oldName, newName] : InSteps(renamings)) {
    oldNames.push_back(std::move(oldName));
    newNames.push_back(std::move(newName));
  }
  Session session(book_, options, streams);
  session.CheckWritable(output_);
  session.CheckBeforeRun(DefinitionsAre::kRenamed);
  CPlotsmithController controller;
  controller.UpdateChartColumnNamesForTable(session.Host(), table_, oldNames, newNames);
  session.CheckTable(table_);
  const auto charted = colCharts ? ChartedColumns(table_) : std::vector<std::string>();
  std::vector<std::string> complaints;
  bool renamed = false, ready = true;
  for (const auto& [oldName, newName] : renamings) {
    if (colCharts && std::find(charted.begin(), charted.end(), newName) == charted.end()) {
      // No earlier run has renamed it either, so the name may be mistyped.
      complaints.push_back("no chart of the table " + Quoted(table_) + " has a column " + Quoted(oldName) +
                           "; " + ThereAre(BeforeRenamings(charted, renamings)) + ".");
      continue;
    }
    renamed = true;
    if (!HasColumn(table_, newName)) {
      complaints.push_back("the table " + Quoted(table_) + " has no column " + Quoted(newName) +
                           " yet, so its charts weren't drawn.");
      ready = false;
    }
  }
  // Axis titles that equal a column name are renamed too. They must be drawn from these definitions;
  // otherwise the next run would treat a title with the old name as one that a person typed.
  if (renamed && ready) controller.RefreshChartsForTable(session.Host(), table_);
  const int code = session.Save(output_);
  for (const std::string& complaint : complaints) streams.err << "plotsmith: " << complaint << '\n';
  return complaints.empty() ? code : exit_code::kDoneWithMessages;
}

}  // namespace plotsmith::cli

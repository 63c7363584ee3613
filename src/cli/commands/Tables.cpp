#include "cli/commands/Tables.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

#include "cli/Session.h"
#include "cli/TableFacts.h"
#include "cli/check/Words.h"
#include "common/RunVariables.h"
#include "dom/Dom.h"

namespace plotsmith::cli {
namespace {

using Json = nlohmann::ordered_json;

void Print(std::ostream& out, const Json& table) {
  out << table["id"].get<std::string>() << "  \"" << OneLine(table["name"].get<std::string>()) << "\"\n  "
      << TablePlace(table) << '\n';
  for (const auto& column : table["columns"]) {
    out << "  " << column["kind"].get<std::string>() << "\tcolumn " << column["column"] << '\t'
        << OneLine(column["name"].get<std::string>()) << '\n';
  }
}

}  // namespace

void TablesCommand::DeclareOptions(CLI::App& verb) {
  verb.add_option("BOOK", book_, "The workbook")->required();
  verb.add_flag("--json", json_, "Print JSON");
}

int TablesCommand::Run(const GlobalOptions& options, const Streams& streams) {
  Session session(book_, options, streams);
  session.LoadTablesAndCharts();
  const int code = session.Finish();
  Json list = Json::array();
  for (const auto& document : *colTables) list.push_back(TableFacts(document.selectSingleNode("table")));
  if (json_) {
    streams.out << list.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
  } else {
    for (const Json& table : list) Print(streams.out, table);
  }
  return code;
}

}  // namespace plotsmith::cli

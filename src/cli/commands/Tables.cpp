#include "cli/commands/Tables.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "cli/Session.h"
#include "common/CommonFunctions.h"
#include "common/RunVariables.h"
#include "dom/Dom.h"

namespace plotsmith::cli {
namespace {

using Json = nlohmann::ordered_json;

Json Describe(const dom::IXMLDOMElement& table) {
  Json columns = Json::array();
  for (const auto& column : table.childElements()) {
    columns.push_back({{"name", GetAttributeText(column, "name")},
                       {"kind", column.tagName() == "label-column" ? "label" : "number"},
                       {"column", GetAttributeLong(column, "worksheet-column-number")}});
  }
  return {{"id", GetAttributeText(table, "id")},
          {"name", GetAttributeText(table, "name")},
          {"sheet", GetAttributeText(table, "table-worksheet")},
          {"topRow", GetAttributeLong(table, "table-top-row")},
          {"leftColumn", GetAttributeLong(table, "table-left-column")},
          {"height", GetAttributeLong(table, "table-height")},
          {"headerRows", GetAttributeLong(table, "header-row-count")},
          {"bucketCandidate", GetAttributeText(table, "is-bucket-candidate") == "yes"},
          {"columns", columns}};
}

void Print(std::ostream& out, const Json& table) {
  const int top = table["topRow"], height = table["height"], headers = table["headerRows"];
  out << table["id"].get<std::string>() << "  \"" << table["name"].get<std::string>() << "\"\n  sheet "
      << table["sheet"].get<std::string>() << ", rows " << top << " to " << top + height - 1 << " ("
      << std::max(height - headers, 0) << " of data), from column " << table["leftColumn"]
      << (table["bucketCandidate"].get<bool>() ? ", can serve as bucket table" : "") << '\n';
  for (const auto& column : table["columns"]) {
    out << "  " << column["kind"].get<std::string>() << "\tcolumn " << column["column"] << '\t'
        << column["name"].get<std::string>() << '\n';
  }
}

}  // namespace

CLI::App* TablesCommand::Declare(CLI::App& app) {
  CLI::App* verb = app.add_subcommand("tables", "List the tables of a workbook, with their columns");
  verb->add_option("BOOK", book_, "The workbook")->required();
  verb->add_flag("--json", json_, "As JSON");
  return verb;
}

int TablesCommand::Run(const GlobalOptions& options, const Streams& streams) {
  Session session(book_, options, streams);
  session.LoadTablesAndCharts();
  const int code = session.Finish();
  Json list = Json::array();
  for (const auto& document : *colTables) list.push_back(Describe(document.selectSingleNode("table")));
  if (json_) {
    streams.out << list.dump(2, ' ', false, Json::error_handler_t::replace) << '\n';
  } else {
    for (const Json& table : list) Print(streams.out, table);
  }
  return code;
}

}  // namespace plotsmith::cli

#include "cli/TableFacts.h"

#include <algorithm>

#include "common/Documents.h"

namespace plotsmith::cli {

using Json = nlohmann::ordered_json;

Json TableFacts(const dom::IXMLDOMElement& table) {
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

std::string TablePlace(const Json& facts) {
  const int top = facts["topRow"], height = facts["height"], headers = facts["headerRows"];
  const int left = facts["leftColumn"];
  return "sheet " + facts["sheet"].get<std::string>() + ", rows " + std::to_string(top) + " to " +
         std::to_string(top + height - 1) + " (" + std::to_string(std::max(height - headers, 0)) +
         " of data), from column " + std::to_string(left) +
         (facts["bucketCandidate"].get<bool>() ? ", can be a bucket table" : "");
}

}  // namespace plotsmith::cli

#include "cli/check/NamedColumns.h"

#include "cli/check/DefinitionFormat.h"
#include "common/Documents.h"
#include "common/RunVariables.h"
#include "runtime/Strings.h"

namespace plotsmith::cli {

using dom::IXMLDOMElement;

bool NamedColumns::Contains(const std::string& table, const std::string& column) {
  if (!columns_) {
    columns_.emplace();
    if (colCharts) {
      for (const dom::IXMLDOMDocument2& document : *colCharts) {
        const auto chart = document.selectSingleNode("chart");
        (*columns_)[GetAttributeText(chart, "table-id")].merge(ColumnsNamedIn(chart));
      }
    }
  }
  const auto found = columns_->find(table);
  return found != columns_->end() && found->second.contains(runtime::UCase(column));
}

std::set<std::string> ColumnsNamedIn(const IXMLDOMElement& chart) {
  std::set<std::string> names;
  for (const ColumnGroup& group : ColumnGroups()) {
    const auto element = chart.selectSingleNode(group.element);
    if (!element) continue;
    for (const IXMLDOMElement& column : element.selectNodes("column")) {
      names.insert(runtime::UCase(GetAttributeText(column, "name")));
    }
  }
  return names;
}

}  // namespace plotsmith::cli

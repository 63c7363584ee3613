#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>

#include "dom/Dom.h"

namespace plotsmith::cli {

/// The columns that the definitions in `colCharts` name, by table. They are collected at the first question,
/// because most workbooks raise none.
class NamedColumns {
 public:
  /// Returns true if a definition of the table with this id names the column. Case is ignored.
  bool Contains(const std::string& table, const std::string& column);

 private:
  std::optional<std::map<std::string, std::set<std::string>>> columns_;  ///< In upper case, by table id.
};

/// Returns the columns that the groups of a definition name, in upper case.
std::set<std::string> ColumnsNamedIn(const dom::IXMLDOMElement& chart);

}  // namespace plotsmith::cli

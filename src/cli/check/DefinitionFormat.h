#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/check/Finding.h"
#include "dom/Dom.h"

/// What a definition can say: the one list of its elements, attributes and values.
namespace plotsmith::cli {

/// What of the element `chart` and all below it is no part of a definition, or is missing from it.
Findings CheckFormat(const dom::IXMLDOMElement& chart, const std::string& place);

/// A child of `chart` that names columns.
struct ColumnGroup {
  const char* element;
  std::vector<std::string_view> readFor;    ///< the chart types that read it
  std::vector<std::string_view> neededFor;  ///< those that can't be drawn without it
  bool numbers;                             ///< its columns give numbers, not headings
  std::vector<std::string_view> headingsIn =
      {};  ///< values of `headings-in`; empty: it has no such attribute

  bool IsReadFor(std::string_view type) const;
  bool IsNeededFor(std::string_view type) const;
};

/// All such children, in the order in which a refresh checks them.
const std::vector<ColumnGroup>& ColumnGroups();

}  // namespace plotsmith::cli

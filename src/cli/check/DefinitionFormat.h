#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/check/Finding.h"
#include "dom/Dom.h"

/// The format of definitions: the list of elements, attributes and values.
namespace plotsmith::cli {

/// Finds unknown and missing parts in the element `chart` and its descendants.
Findings CheckFormat(const dom::IXMLDOMElement& chart, const std::string& place);

/// A child element of `chart` that names columns.
struct ColumnGroup {
  /// The contents that a chart takes from columns.
  enum class Content { kNames, kNumbers };
  const char* element;                      ///< The name of the element.
  std::vector<std::string_view> readFor;    ///< The chart types that use it.
  std::vector<std::string_view> neededFor;  ///< The chart types that require it.
  Content content;                          ///< The contents that the chart takes from its columns.
  std::vector<std::string_view> headingsIn =
      {};  ///< The values of `headings-in`; empty if it has no such attribute.

  /// Returns true if charts of the type use the element.
  bool IsReadFor(std::string_view type) const;
  /// Returns true if charts of the type require the element.
  bool IsNeededFor(std::string_view type) const;
};

/// Returns all such elements, in the order in which a refresh checks them.
const std::vector<ColumnGroup>& ColumnGroups();

}  // namespace plotsmith::cli

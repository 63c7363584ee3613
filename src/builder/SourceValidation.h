#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "dom/Dom.h"

/// Module PSChartBuilder: checks a definition against the current tables. The positions of the table and of
/// its columns are written into the definition, from which all later steps read them.
namespace plotsmith {

/// Checks the definition. Shows a message and returns False if the chart can't be built.
bool ValidateSourceData(dom::IXMLDOMElement& oChartElement);
/// Returns True if the table has a column with that name, of either kind, ignoring case. Then writes the
/// sheet column into the chart's column.
bool ValidateSourceColumn(dom::IXMLDOMElement& oColumnElement, const dom::IXMLDOMElement& oTableElement,
                          std::string_view sHeadingsIn);
/// The sheet column of a heading in a bucket table, from 1; 0 if the table doesn't have it. `sColumnKind` is
/// "bucket-name-column" for a label column or "bucket-value-column" for a number column.
std::int32_t BucketColumnPosition(const std::string& sColumnName, std::string_view sColumnKind,
                                  const dom::IXMLDOMElement& oTableElement);

}  // namespace plotsmith

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "dom/Dom.h"

/// Module PSChartBuilder: a definition against the tables as they are now. What is found is carried into the
/// definition, and everything behind this step reads the geometry from there.
namespace plotsmith {

/// False, after a message, if the chart can't be built.
bool ValidateSourceData(dom::IXMLDOMElement& oChartElement);
/// Whether the table has a column of that name, of either kind, ignoring case; then the chart's column gets
/// its sheet column.
bool ValidateSourceColumn(dom::IXMLDOMElement& oColumnElement, const dom::IXMLDOMElement& oTableElement,
                          std::string_view sHeadingsIn);
/// The sheet column, 0 if there is none, of a bucket table's heading in the source table. `sColumnKind` is
/// "bucket-name-column", sought among the label columns, or "bucket-value-column", among the number columns.
std::int32_t BucketColumnPosition(const std::string& sColumnName, std::string_view sColumnKind,
                                  const dom::IXMLDOMElement& oTableElement);

}  // namespace plotsmith

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "dom/Dom.h"

/// Module PSChartBuilder: a definition against the tables as they are now. What is found is carried into the
/// definition, and everything behind this step reads the geometry from there.
namespace plotsmith {

/// The columns of a table, read once for all that are looked up among them.
struct TableColumns {
  struct Column {
    std::string sName;
    std::string sNumber;  ///< of the sheet's column
  };
  explicit TableColumns(const dom::IXMLDOMElement& oTable);

  std::vector<Column> aLabels, aNumbers;
};

/// False, after a message, if the chart can't be built.
bool ValidateSourceData(dom::IXMLDOMElement& oChartElement);
/// Whether the table has a column of that name, of either kind, ignoring case; then the chart's column gets
/// its sheet column.
bool ValidateSourceColumn(dom::IXMLDOMElement& oColumnElement, const TableColumns& oTable,
                          std::string_view sHeadingsIn);
/// The sheet column, 0 if there is none, of a bucket table's heading in the source table. `sColumnKind` is
/// "bucket-name-column", sought among the label columns, or "bucket-value-column", among the number columns.
std::int32_t BucketColumnPosition(const std::string& sColumnName, std::string_view sColumnKind,
                                  const TableColumns& oTable);

}  // namespace plotsmith

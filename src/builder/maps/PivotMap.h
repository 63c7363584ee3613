#pragma once

#include "dom/Dom.h"

/// Module PSChartBuilder: the instructions that turn a table into the rectangle of categories and series. The
/// map contains no data. It is made once for each build, and applied to each row of the table.
namespace plotsmith {

/// Fills the map's variables from the definition and the table, for charts of all types. Shows a message and
/// returns False if the map is empty.
bool BuildPivotMap(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

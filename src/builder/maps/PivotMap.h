#pragma once

#include "dom/Dom.h"

/// Module PSChartBuilder: the rules that carry a table into the rectangle of categories and series. The map
/// holds no data; it is made once a build and run for each row of the table.
namespace plotsmith {

/// Fills the map's variables from the definition and the table, for charts of any type; False, after a
/// message, if nothing can come of it.
bool BuildPivotMap(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

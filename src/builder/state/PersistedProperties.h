#pragma once

#include "dom/Dom.h"

/// Module PSChartBuilder: the formats that a person has given a chart. The `auto-persistence` element of the
/// definition keeps them; they are loaded into the module's variables before the chart is drawn.
namespace plotsmith {

/// The coordinate of a legend without a stored place.
inline constexpr double kUnsetPlace = -1E+50;

/// Sets the values that the variables have without stored ones.
void SetPropertyDefaults();
/// Sets the defaults and then the values that the definition stores. With a stored place, the legend's
/// position is 0.
void RetrievePersistedProperties(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

#pragma once

#include "dom/Dom.h"

/// Module PSChartBuilder: the look that a person gave a chart by hand, as the definition's `auto-persistence`
/// keeps it, taken into the module's variables before the chart is drawn.
namespace plotsmith {

/// "Unset" for a legend's place.
inline constexpr double kUnsetPlace = -1E+50;

/// What each variable is without a stored value.
void SetPropertyDefaults();
/// Defaults, and over them what the definition stores. A stored place of the legend makes its position 0.
void RetrievePersistedProperties(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

#pragma once

#include "dom/Dom.h"

/// Module PSChartBuilder: the formats that a user has given to a chart. The element `auto-persistence` of the
/// definition stores them; they are loaded into the module's variables before the chart is drawn.
namespace plotsmith {

/// The coordinate of a legend without a stored position.
inline constexpr double kUnsetPlace = -1E+50;

/// Sets the variables to their default values.
void SetPropertyDefaults();
/// Sets the defaults, and then the values in the definition. With stored coordinates, the legend's position
/// is 0.
void RetrievePersistedProperties(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

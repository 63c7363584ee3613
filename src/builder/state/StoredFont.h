#pragma once

#include "runtime/Variant.h"

namespace plotsmith {

/// A font as a definition stores it. The host converts the values when they are set on a chart.
struct StoredFont {
  runtime::Variant vName;       ///< typeface
  runtime::Variant vStyle;      ///< "Regular", "Bold", "Italic" or "Bold Italic"
  runtime::Variant vSize;       ///< points
  runtime::Variant vColor;      ///< red + 256 green + 65536 blue
  runtime::Variant vAutoScale;  ///< True if the font scales with the chart: a Boolean or its text
};

}  // namespace plotsmith

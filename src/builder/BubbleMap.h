#pragma once

#include <cstdint>

#include "dom/Dom.h"

/// Module PSChartBuilder: the map of a bubble chart. Each name in the category column is one bubble, and the
/// series are what a bubble has: colour label, X value, Y value and size.
namespace plotsmith {

/// The columns of a bubble chart's block on the data sheet.
namespace bubble_column {
inline constexpr std::int32_t kName = 2;
inline constexpr std::int32_t kColor = 3;
inline constexpr std::int32_t kX = 4;
inline constexpr std::int32_t kY = 5;
inline constexpr std::int32_t kSize = 6;
}  // namespace bubble_column

/// Called by BuildPivotMap, and fills the same variables.
bool BuildBubbleMap(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

#pragma once

#include <cstdint>

#include "common/PSConstants.h"
#include "dom/Dom.h"

/// Module PSChartBuilder: the map of a bubble chart. Each name in the category column is one bubble, and the
/// series are what a bubble has: colour label, X value, Y value and size.
namespace plotsmith {

/// The series columns of a bubble chart's block on the data sheet.
namespace bubble_column {
inline constexpr std::int32_t kColor = data_column::kFirstSeries;
inline constexpr std::int32_t kX = kColor + 1;
inline constexpr std::int32_t kY = kColor + 2;
inline constexpr std::int32_t kSize = kColor + 3;
}  // namespace bubble_column

/// Called by BuildPivotMap, and fills the same variables.
bool BuildBubbleMap(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

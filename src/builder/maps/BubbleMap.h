#pragma once

#include <cstdint>

#include "common/PSConstants.h"
#include "dom/Dom.h"

/// Module PSChartBuilder: the map of a bubble chart. Each name in the category column is one bubble. The
/// series are the bubbles' colour labels, X values, Y values and sizes.
namespace plotsmith {

/// The series columns of a bubble chart's block on the data sheet.
namespace bubble_column {
/// The texts that become the names of the series.
inline constexpr std::int32_t kColor = data_column::kFirstSeries;
/// The X values.
inline constexpr std::int32_t kX = kColor + 1;
/// The Y values.
inline constexpr std::int32_t kY = kColor + 2;
/// The sizes of the bubbles.
inline constexpr std::int32_t kSize = kColor + 3;
}  // namespace bubble_column

/// Fills the map's variables for BuildPivotMap.
bool BuildBubbleMap(const dom::IXMLDOMElement& oChartElement);

}  // namespace plotsmith

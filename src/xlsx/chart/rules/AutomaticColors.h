#pragma once

#include <cstddef>
#include <cstdint>
#include <pugixml.hpp>

namespace plotsmith::xlsx {

class ChartPart;

/// The number of the chart's style, from 1 to 48, in the gallery of Excel 2007 and 2010. Styles from 33 on
/// have dark backgrounds.
long long ChartStyleOf(ChartPart& part);
/// Returns true if the chart's style has a dark chart area with light texts.
bool HasDarkArea(ChartPart& part);
/// The automatic fills of the chart area and of the plot area, from the chart's style (ECMA-376-1,
/// 21.2.3.46).
/// @{
std::int32_t AutomaticChartArea(ChartPart& part);
std::int32_t AutomaticPlotArea(ChartPart& part);
///@}
/// The colour of texts that have no colour in the file.
std::int32_t AutomaticTextColor(ChartPart& part);
/// The colour of a series without its own fill. It depends on the series' number, the chart's style and the
/// theme.
std::int32_t AutomaticColor(ChartPart& part, pugi::xml_node series);
/// The colour for number `index`, from 0, of `count` series, or of `count` points in varied colours.
std::int32_t AutomaticColor(ChartPart& part, std::size_t index, std::size_t count);

}  // namespace plotsmith::xlsx

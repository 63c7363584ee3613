#pragma once

#include <cstddef>
#include <cstdint>
#include <pugixml.hpp>

namespace plotsmith::xlsx {

class ChartPart;

/// The number of the chart's style, from 1 to 48, in the gallery of Excel 2007 and 2010. Those from 33 have
/// dark backgrounds.
long long ChartStyleOf(ChartPart& part);
/// Whether texts are light on a dark chart area in the chart's style.
bool HasDarkArea(ChartPart& part);
/// The fillings of the chart area and of the plot area where nothing is set, by the chart's style
/// (ECMA-376-1, 21.2.3.46).
///@{
std::int32_t AutomaticChartArea(ChartPart& part);
std::int32_t AutomaticPlotArea(ChartPart& part);
///@}
/// The colour of texts where nothing is set.
std::int32_t AutomaticTextColor(ChartPart& part);
/// The colour that a series without a filling of its own has, by its number, the chart's style and the theme.
std::int32_t AutomaticColor(ChartPart& part, pugi::xml_node series);
/// The same for number `index`, from 0, of `count` series, or of `count` points that differ in colour.
std::int32_t AutomaticColor(ChartPart& part, std::size_t index, std::size_t count);

}  // namespace plotsmith::xlsx

#pragma once

#include <cstddef>
#include <cstdint>
#include <pugixml.hpp>

namespace plotsmith::xlsx {

class ChartPart;

/// The number of the chart's style, from 1 to 48, in the gallery of Excel 2007 and 2010. Those from 33 have
/// dark backgrounds.
long long ChartStyleOf(ChartPart& part);
/// The colour of a series that has no fill of its own. The number of the series, the chart's style and the
/// theme decide. Colours are red + 256 * green + 65536 * blue.
std::int32_t AutomaticColor(ChartPart& part, pugi::xml_node series);
/// The same for number `index`, from 0, of `count` series, or of `count` points that differ in colour.
std::int32_t AutomaticColor(ChartPart& part, std::size_t index, std::size_t count);

}  // namespace plotsmith::xlsx

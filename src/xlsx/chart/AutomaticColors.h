#pragma once

#include <cstdint>
#include <pugixml.hpp>

namespace plotsmith::xlsx {

class ChartPart;

/// The colour that a series without a filling of its own has, by its number, the chart's style and the theme.
std::int32_t AutomaticColor(ChartPart& part, pugi::xml_node series);

}  // namespace plotsmith::xlsx

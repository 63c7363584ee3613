#pragma once

#include <cstdint>
#include <pugixml.hpp>

#include "xlsx/Enumerations.h"

namespace plotsmith::xlsx {

class ChartPart;

/// Which of Excel's chart types (XlChartType) a chart of any program is; xlCombination where it is none, or
/// mixes several.

/// Of a series. A line of which only the markers are seen is none of the types.
std::int32_t TypeOfSeries(pugi::xml_node series);
/// Of the chart: its series' type if they have one in common. Without a series, that of its first group.
std::int32_t TypeOfChart(ChartPart& part);

/// A type of the group's kind and direction; null for a kind that the host doesn't draw. What of that kind
/// the series are, and how they are stacked, only their types say.
const ChartTypeEntry* TypeOfGroup(pugi::xml_node group);

}  // namespace plotsmith::xlsx

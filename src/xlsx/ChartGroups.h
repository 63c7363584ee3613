#pragma once

#include <pugixml.hpp>
#include <vector>

#include "xlsx/Enumerations.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The plot groups of a chart and the axes they hang on.

/// All series, in plot order.
std::vector<pugi::xml_node> SeriesOf(ChartPart& part);
/// A new, empty series at the end, in the first group; a chart without a group gets one of clustered columns,
/// as Excel does it.
pugi::xml_node AddSeries(ChartPart& part);

/// Moves all series into one group of the type. What the type before had, and this one can't have, is laid
/// aside and comes back when the chart returns to that type: a refresh draws every chart as clustered bars
/// first, and a chart that somebody dressed must come out of that as it went in.
void SetType(ChartPart& part, const ChartTypeEntry& type);

/// An axis whose labels take the number format of the data also holds it, for readers that don't compute it:
/// the first series', or percent where the values are shares. Brings that up to date.
void UpdateLinkedFormats(ChartPart& part);

/// The primary axis of a kind; a null node if the chart has none. `value` is the value axis, else the
/// category axis.
pugi::xml_node FindAxis(ChartPart& part, bool value);

}  // namespace plotsmith::xlsx

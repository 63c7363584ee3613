#pragma once

#include <pugixml.hpp>

#include "xlsx/chart/rules/ScaleRules.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The scale of a value axis. Automatic limits are computed like Excel's, from the cached data of the series
/// on the axis.
AxisScale ScaleOf(ChartPart& part, pugi::xml_node axis);

}  // namespace plotsmith::xlsx

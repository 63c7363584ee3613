#pragma once

#include <pugixml.hpp>

#include "xlsx/chart/rules/ScaleRules.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The scale of a value axis. Limits that aren't set are computed as Excel computes them, from the cached
/// data of the series along the axis.
AxisScale ScaleOf(ChartPart& part, pugi::xml_node axis);

}  // namespace plotsmith::xlsx

#pragma once

#include <pugixml.hpp>

#include "xlsx/chart/rules/ScaleRules.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The limits of an axis of values: as they are set, and as Excel computes them from the cached data of the
/// series along the axis where they aren't.
AxisScale ScaleOf(ChartPart& part, pugi::xml_node axis);

}  // namespace plotsmith::xlsx

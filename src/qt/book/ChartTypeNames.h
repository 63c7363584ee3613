#pragma once

#include <QtCore/QString>
#include <cstdint>

namespace plotsmith::qtbook {

/// Returns the name of a chart type (XlChartType or xlCombination), or "Chart" for a type that the host
/// doesn't draw.
QString ChartTypeName(std::int32_t type);

}  // namespace plotsmith::qtbook

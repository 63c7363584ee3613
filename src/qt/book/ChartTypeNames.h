#pragma once

#include <QtCore/QString>
#include <cstdint>

namespace plotsmith::qtbook {

/// A chart type (XlChartType, or xlCombination) in words; "Chart" for one that the host doesn't draw.
QString ChartTypeName(std::int32_t type);

}  // namespace plotsmith::qtbook

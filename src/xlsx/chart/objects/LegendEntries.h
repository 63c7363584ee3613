#pragma once

#include <memory>

#include "host/excel/LegendEntries.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The entries of a chart's legend for the port. The file contains only the entries that were deleted or
/// formatted, by number.
excel::Ref<excel::LegendEntries> MakeLegendEntries(std::shared_ptr<ChartPart> part);

}  // namespace plotsmith::xlsx

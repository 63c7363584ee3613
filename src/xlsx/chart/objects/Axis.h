#pragma once

#include <cstdint>
#include <memory>

#include "host/excel/Axis.h"

namespace plotsmith::xlsx {

class ChartPart;

/// The primary axis of a type (xlCategory or xlValue) for the port. The chart must have the axis.
excel::Ref<excel::Axis> MakeAxis(std::shared_ptr<ChartPart> part, std::int32_t type);

}  // namespace plotsmith::xlsx

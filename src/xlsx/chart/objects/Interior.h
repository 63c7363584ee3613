#pragma once

#include <cstdint>
#include <functional>

#include "host/excel/Interior.h"
#include "xlsx/chart/objects/FormattedElement.h"

namespace plotsmith::xlsx {

/// The fill of a chart element for the port. `automatic` returns the colour of an element without its own
/// fill.
excel::Ref<excel::Interior> MakeInterior(FormattedElement element, std::function<std::int32_t()> automatic);

}  // namespace plotsmith::xlsx

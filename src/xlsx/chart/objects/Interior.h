#pragma once

#include <cstdint>
#include <functional>

#include "host/excel/Interior.h"
#include "xlsx/chart/objects/FormattedElement.h"

namespace plotsmith::xlsx {

/// The filling of an element of a chart. `automatic` tells the colour that it has where nothing is set.
excel::Ref<excel::Interior> MakeInterior(FormattedElement element, std::function<std::int32_t()> automatic);

}  // namespace plotsmith::xlsx

#pragma once

#include "host/excel/Border.h"
#include "xlsx/ChartElement.h"

namespace plotsmith::xlsx {

/// The outline of an element of a chart; of a line, the line itself.
excel::Ref<excel::Border> MakeBorder(ChartElement element);

}  // namespace plotsmith::xlsx

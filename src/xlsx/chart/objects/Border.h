#pragma once

#include "host/excel/Border.h"
#include "xlsx/chart/objects/FormattedElement.h"

namespace plotsmith::xlsx {

/// The outline of an element of a chart; of a line, the line itself.
excel::Ref<excel::Border> MakeBorder(FormattedElement element);

}  // namespace plotsmith::xlsx

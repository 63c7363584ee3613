#pragma once

#include "host/excel/Border.h"
#include "xlsx/chart/objects/FormattedElement.h"

namespace plotsmith::xlsx {

/// The outline of a chart element for the port. For a line, this is the line itself.
excel::Ref<excel::Border> MakeBorder(FormattedElement element);

}  // namespace plotsmith::xlsx

#pragma once

#include <string>

#include "xlsx/package/Namespaces.h"

namespace plotsmith::xlsx {

/// Returns a theme part with the colours and fonts of Office 2007-2010, which Excel uses for a workbook
/// without a theme. Automatic formats of a chart, such as the colours of series, come from the theme, and not
/// every program has a default theme. The elements are in the namespace of DrawingML in `vocabulary`.
std::string DefaultTheme(const Namespaces& vocabulary);

}  // namespace plotsmith::xlsx

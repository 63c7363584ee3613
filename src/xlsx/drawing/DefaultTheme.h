#pragma once

#include <string>

namespace plotsmith::xlsx {

/// A theme part for a workbook that has none, with the colours and fonts of Office 2007-2010, which Excel
/// uses then. Automatic formats of a chart, such as the colours of series, come from the theme, and not every
/// reader has a default theme. `strict` chooses the Strict vocabulary.
std::string DefaultTheme(bool strict);

}  // namespace plotsmith::xlsx

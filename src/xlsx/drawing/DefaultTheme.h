#pragma once

#include <string>

namespace plotsmith::xlsx {

/// A theme for a workbook that has none, with the colours and fonts that Excel falls back to (Office
/// 2007-2010). What is automatic on a chart, the colours of series first of all, is taken from the theme, and
/// not every reader brings one of its own.
std::string DefaultTheme(bool strict);

}  // namespace plotsmith::xlsx

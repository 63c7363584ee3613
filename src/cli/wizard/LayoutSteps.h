#pragma once

#include <string>

#include "cli/wizard/ChartOptions.h"
#include "cli/wizard/Steps.h"

namespace plotsmith::cli {

/// The steps that give the options to the layout page of a chart type. A ScriptError for an option, a setting
/// or a kind of labels that the page has no control for.
Steps LayoutSteps(const LayoutOptions& options, const std::string& type);

}  // namespace plotsmith::cli

#pragma once

#include <string>

#include "cli/wizard/ChartOptions.h"
#include "cli/wizard/Steps.h"

namespace plotsmith::cli {

/// Returns the steps that enter the options on the layout page of a chart type. Throws ScriptError for an
/// option, a setting or a kind of labels without a control on the page.
Steps LayoutSteps(const LayoutOptions& options, const std::string& type);

}  // namespace plotsmith::cli

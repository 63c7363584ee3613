#pragma once

#include <string>

#include "forms/script/FormState.h"
#include "qt/forms/FormWindow.h"

namespace plotsmith::test {

/// What a person sees in the window, read from its widgets alone.
forms::FormState StateOfWidgets(const qt::FormWindow& window);

/// Where the window shows something else than its form says, a line each; empty if nowhere.
std::string DifferencesFromModel(const qt::FormWindow& window);

}  // namespace plotsmith::test

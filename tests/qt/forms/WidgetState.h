#pragma once

#include <string>

#include "forms/script/FormState.h"
#include "qt/forms/FormWindow.h"

namespace plotsmith::test {

/// Returns the visible state of the window, read from its widgets alone.
forms::FormState StateOfWidgets(const qt::FormWindow& window);

/// Returns the differences between the window and its form, one per line, or "".
std::string DifferencesFromModel(const qt::FormWindow& window);

}  // namespace plotsmith::test

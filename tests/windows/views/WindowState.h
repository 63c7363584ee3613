#pragma once

#include <string>
#include <vector>

#include "forms/Form.h"
#include "forms/script/FormState.h"
#include "windows/com/Windows.h"

namespace plotsmith::test {

/// Returns the child windows of a form's controls, in tab order.
std::vector<HWND> ControlWindows(HWND form);
/// Returns the window of a control by name, or null.
HWND ControlWindow(HWND form, const std::string& name);

/// Returns the visible state of a form's window, read from windows alone, without the texts for screen
/// readers.
forms::FormState StateOfWindow(HWND form);

/// Returns the differences between a window and its form, one per line, or "".
std::string DifferencesFromModel(const forms::Form& form, HWND window);

}  // namespace plotsmith::test

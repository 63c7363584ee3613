#pragma once

#include <string>
#include <vector>

#include "forms/Form.h"
#include "forms/script/FormState.h"
#include "windows/com/Windows.h"

namespace plotsmith::test {

/// The child windows that show the controls of a form, in the order in which Tab goes through them.
std::vector<HWND> ControlWindows(HWND form);
/// The window of a control, by its name; null if there is none.
HWND ControlWindow(HWND form, const std::string& name);

/// What a person sees in the window of a form, read from windows alone. What a screen reader says isn't told.
forms::FormState StateOfWindow(HWND form);

/// Where a window shows something else than its form says, a line each; empty if nowhere.
std::string DifferencesFromModel(const forms::Form& form, HWND window);

}  // namespace plotsmith::test

#pragma once

#include <string>

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// Writes a name on a window, by which tools that test programs find it: the name of a form, or the full name
/// of a control ("optType(1)"). It is the window's property "Plotsmith.Name", a global atom, which must be
/// removed before the window is gone.
///@{
void SetWindowName(HWND window, const std::string& name);
void RemoveWindowName(HWND window);
/// Empty for a window without one.
std::string WindowName(HWND window);
///@}

}  // namespace plotsmith::windows

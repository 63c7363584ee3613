#pragma once

#include <string>

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// Store and remove the name of a window, by which test tools find it: the name of a form, or the full name
/// of a control ("optType(1)"). The name is a global atom in the window's property "Plotsmith.Name", which
/// must be removed before the window is destroyed.
/// @{
void SetWindowName(HWND window, const std::string& name);
void RemoveWindowName(HWND window);
/// Returns the name of a window, or an empty text if it has none.
std::string WindowName(HWND window);
///@}

}  // namespace plotsmith::windows

#pragma once

#include <cstdint>

#include "windows/com/Windows.h"
namespace plotsmith::windows {

/// Returns the handle of an Excel Application's window, from its property Hwnd, or 0 if it has none.
std::intptr_t HostWindow(IDispatch* application) noexcept;

}  // namespace plotsmith::windows

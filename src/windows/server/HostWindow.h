#pragma once

#include <cstdint>

#include "windows/com/Windows.h"
namespace plotsmith::windows {

/// The handle of the window of an Excel Application, which it answers as Hwnd; 0 where it has none.
std::intptr_t HostWindow(IDispatch* application) noexcept;

}  // namespace plotsmith::windows

#pragma once

#include <string>

#include "windows/com/Windows.h"

namespace plotsmith::test {

/// Returns the controls of a form whose caption isn't painted completely; empty if there are none. Each
/// control is painted once in its own width and once in a larger one, and the captions are compared.
std::string CutCaptions(HWND form);

}  // namespace plotsmith::test

#pragma once

#include <string>

#include "windows/com/Windows.h"

namespace plotsmith::test {

/// The controls of a form whose caption isn't wholly painted, as a person sees it: each is painted once in
/// its own width and once in a larger one, and the captions are compared. Empty if all captions are whole.
std::string CutCaptions(HWND form);

}  // namespace plotsmith::test

#pragma once

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// Chooses version 6 of the common controls, with visual styles, for the windows that are created while this
/// lives, in programs of any other version as well. A manifest in the module, resource 2, names that
/// version. Without it, windows are those of the program.
class ActivationContext {
 public:
  ActivationContext();
  ~ActivationContext();
  ActivationContext(const ActivationContext&) = delete;
  ActivationContext& operator=(const ActivationContext&) = delete;

 private:
  ULONG_PTR cookie_ = 0;
  bool isActive_ = false;
};

/// The library of the common controls, in the version that the first ActivationContext has chosen.
HMODULE CommonControls();

/// The module that this code is in: the DLL, or a program that it was linked into.
HINSTANCE OwnModule();

}  // namespace plotsmith::windows

#pragma once

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// While it lives, windows are created with version 6 of the common controls, which has visual styles, even
/// if the program uses another version. A manifest in the module, resource 2, names that version. Without
/// this manifest, windows use the program's version.
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

/// Returns the library of the common controls, in the version that the first ActivationContext has selected.
HMODULE CommonControls();

/// Returns the module that contains this code: the DLL, or a program that is linked with it.
HINSTANCE OwnModule();

}  // namespace plotsmith::windows

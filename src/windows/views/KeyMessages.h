#pragma once

#include "forms/Keys.h"
#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// Returns the key press that a keyboard message reports.
forms::KeyPress KeyPressOf(const MSG& message);

/// Counts a key that is held down as one press. Otherwise its repetitions would press the buttons of several
/// message boxes and forms in turn. This affects all dialogs of the thread while this object exists.
class HeldKeys {
 public:
  HeldKeys();
  ~HeldKeys();
  HeldKeys(const HeldKeys&) = delete;
  HeldKeys& operator=(const HeldKeys&) = delete;

 private:
  HHOOK hook_;
};

}  // namespace plotsmith::windows

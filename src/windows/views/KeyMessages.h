#pragma once

#include "forms/Keys.h"
#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// The press that a message about a key tells of.
forms::KeyPress KeyPressOf(const MSG& message);

/// Lets a key that is held down count once, where it would press one button after the other, in message boxes
/// as well as in forms. It works on all dialogs of the thread for as long as it lives.
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

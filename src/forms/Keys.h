#pragma once

#include "forms/Control.h"

namespace plotsmith::forms {

/// The keys that a form processes itself, independent of the focus.
enum class Key { kOther, kEnter, kEscape, kHelp };

/// A key press, as toolkits report it.
struct KeyPress {
  Key key = Key::kOther;    ///< The key.
  bool withAlt = false;     ///< Whether the Alt key is held down.
  bool isRepeated = false;  ///< Whether this press is an automatic repetition of a held key.
};

/// Returns true if the control is a multi-line text box, in which Enter ends a line.
bool TakesEnter(const Control* control);

/// Returns true if the press must be ignored. A held key counts only once if its repetitions would press one
/// button after another: Enter and Escape, and all keys together with Alt. `isInLines` is true if the focus
/// is in a multi-line text box.
bool IsHeldKey(const KeyPress& press, bool isInLines);

/// Performs the action of a key that the form processes: presses the default button, the cancel button or the
/// help button. Returns false for other keys, and if there is no such button or it can't be pressed.
bool UserKey(Form& form, Key key);

}  // namespace plotsmith::forms

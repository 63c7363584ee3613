#pragma once

#include "forms/Control.h"

namespace plotsmith::forms {

/// The keys that a form takes for itself, wherever its focus is.
enum class Key { kOther, kEnter, kEscape, kHelp };

/// A press of a key, as every toolkit tells it.
struct KeyPress {
  Key key = Key::kOther;
  bool withAlt = false;
  bool isRepeated = false;  ///< the key is held down, and this isn't the first press that came of it
};

/// Whether the control is a text of several lines, in which Enter ends a line.
bool TakesEnter(const Control* control);

/// Whether the press must do nothing. A key that is held down counts once where it would press one button
/// after the other: Enter and Escape, and all keys together with Alt. `isInLines` is whether the focus is in
/// a text of several lines.
bool IsHeldKey(const KeyPress& press, bool isInLines);

/// The gesture of a key that the form takes for itself: the default button, the cancel button or the help
/// button is pressed. False for other keys, and where there is no such button or it can't be pressed.
bool UserKey(Form& form, Key key);

}  // namespace plotsmith::forms

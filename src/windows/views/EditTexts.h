#pragma once

#include <string>

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// The number of lines of a text box.
enum class Lines { kOne, kSeveral };

/// Returns the part of a text that can be typed. Line breaks and characters that can't be typed become
/// blanks; in a box of several lines, line breaks become CR LF and tabs are kept.
std::wstring Typeable(std::wstring text, Lines lines);

/// Handles the messages to which a form reacts differently from a standard edit control. Returns false for
/// all others. A text of several lines that is pasted into a box of one line isn't cut after the first line.
/// Text that doesn't fit, and a trailing surrogate without a leading one, are left out with a beep. Ctrl+A
/// selects everything.
bool HandleEditMessage(HWND edit, Lines lines, UINT message, WPARAM wParam);

/// Returns true if the first unit of a surrogate pair is before the cursor and the second one is still
/// missing. Windows sends the two units in two messages.
bool HasHalfCharacter(HWND edit);

}  // namespace plotsmith::windows

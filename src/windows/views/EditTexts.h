#pragma once

#include <string>

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// How many lines a box for texts takes.
enum class Lines { kOne, kSeveral };

/// The part of a text that can be typed. Line breaks and characters that can't be typed become blanks; in
/// several lines, line breaks become CR LF and tabs stay.
std::wstring Typeable(std::wstring text, Lines lines);

/// Does what an edit control would do otherwise than a form wants, before it gets the message; false for all
/// other messages. A text of several lines that is pasted into a box for one isn't cut off at the first line.
/// What has no room is left out, with a beep, and so is the second unit of a character without its first one.
/// Control and A select everything.
bool HandleEditMessage(HWND edit, Lines lines, UINT message, WPARAM wParam);

/// Whether the first unit of a character is in front of the cursor, and the second one not yet behind it.
/// Windows sends a character of two units in two messages.
bool HasHalfCharacter(HWND edit);

}  // namespace plotsmith::windows

#pragma once

#include <string>

#include "windows/com/Windows.h"

namespace plotsmith::windows {

/// How many lines a box for texts takes.
enum class Lines { kOne, kSeveral };

/// What a hand can have typed of a text. Line breaks and characters that can't be typed become blanks; in
/// several lines, line breaks become CR LF and tabs stay.
std::wstring Typeable(std::wstring text, Lines lines);

/// Pastes the text of the clipboard over the selection of an edit control: as much as it has room for, where
/// a line end that a box of one line would cut it at becomes a blank. Beeps if something has no room.
void PasteText(HWND edit, Lines lines);

}  // namespace plotsmith::windows

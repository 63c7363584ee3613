#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// @file
/// The language's string functions over UTF-8. Lengths and positions count UTF-16 units, as the language and
/// Excel count them; a half of a surrogate pair that a cut leaves behind is carried as its own three bytes,
/// and becomes whole again when the halves are joined in UTF-16.
namespace plotsmith::runtime {

/// Upper case, character by character, so that the length in characters never changes (ß stays).
std::string UCase(std::string_view text);
/// The same into a buffer that the caller keeps, for hot loops; the view is into `scratch` or is `text`
/// itself.
std::string_view UCase(std::string_view text, std::string& scratch);
/// Whether both are the same in upper case.
bool EqualsIgnoreCase(std::string_view a, std::string_view b);

/// Without the blanks (U+0020 only) at both ends.
std::string_view Trim(std::string_view text);

/// How many UTF-16 units a text has.
std::size_t Len(std::string_view text);
/// `length` units from `start`, which counts from 1; error 5 before that. What lies behind the end is
/// missing.
std::string Mid(std::string_view text, std::size_t start, std::size_t length);

/// What isn't UTF-8 becomes U+FFFD; halves of surrogate pairs pass both ways.
///@{
std::u16string ToUtf16(std::string_view text);
std::string ToUtf8(std::u16string_view text);
///@}

/// Reads one character and moves behind it; what isn't UTF-8 comes out as U+FFFD, byte by byte. Halves of
/// surrogate pairs pass.
char32_t NextCharacter(std::string_view text, std::size_t& position);
/// Whether a character is a letter in any script.
bool IsLetter(char32_t character);
/// The way back: halves of surrogate pairs pass as well.
void AppendUtf8(std::string& text, char32_t character);

/// Replaces every `from` in `text`, case by case; an empty `from` is nowhere.
std::string Replace(std::string_view text, std::string_view from, std::string_view to);

}  // namespace plotsmith::runtime

#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// @file
/// The language's string functions for UTF-8 strings. Lengths and positions count UTF-16 units, as in the
/// language and in Excel. If a cut splits a surrogate pair, each half is stored in three bytes of its own;
/// the halves become one character again when they are joined in UTF-16.
namespace plotsmith::runtime {

/// Converts to upper case, character by character. The number of characters never changes (ß stays).
std::string UCase(std::string_view text);
/// Converts to upper case in a buffer of the caller, for inner loops. The result is a view of `scratch`, or
/// `text` itself.
std::string_view UCase(std::string_view text, std::string& scratch);
/// Returns true if both strings are equal in upper case.
bool EqualsIgnoreCase(std::string_view a, std::string_view b);

/// Removes the blanks (only U+0020) at both ends.
std::string_view Trim(std::string_view text);

/// Returns the number of UTF-16 units.
std::size_t Len(std::string_view text);

/// Returns the first `count` UTF-16 units; fewer if the text is shorter, or if the end would split a
/// surrogate pair.
std::string_view Left(std::string_view text, std::size_t count);

/// Converts between UTF-8 and UTF-16. Invalid UTF-8 becomes U+FFFD; halves of surrogate pairs are kept in
/// both directions.
///@{
std::u16string ToUtf16(std::string_view text);
std::string ToUtf8(std::u16string_view text);
///@}

/// Reads one character and moves the position to the next one. Each byte of invalid UTF-8 gives U+FFFD;
/// halves of surrogate pairs are kept.
char32_t NextCharacter(std::string_view text, std::size_t& position);
/// Return the first byte of the character that contains the byte at `position`, and the byte behind it. The
/// text is valid UTF-8.
///@{
std::size_t CharacterStart(std::string_view text, std::size_t position);
std::size_t CharacterEnd(std::string_view text, std::size_t position);
///@}
/// Returns the end of the word that begins at a byte; lines may break there. A word ends at a blank. It also
/// ends beside a wide East Asian character, except before closing and after opening punctuation.
std::size_t WordEnd(std::string_view text, std::size_t begin);
/// Returns true if the character is a letter in any script.
bool IsLetter(char32_t character);
/// Appends a character as UTF-8. Halves of surrogate pairs are kept.
void AppendUtf8(std::string& text, char32_t character);

/// Replaces every `from` in `text`, with regard to case. An empty `from` occurs nowhere.
std::string Replace(std::string_view text, std::string_view from, std::string_view to);

/// Returns a text in quotation marks, as formulas and VBA write it: a mark in the text is doubled.
std::string InQuotes(std::string_view text, char mark);
/// Removes the quoted text at the start of `text`, and returns it without quotes. The first character of
/// `text` is the quotation mark. If the end is missing, all of `text` is taken.
std::string TakeQuoted(std::string_view& text);

}  // namespace plotsmith::runtime

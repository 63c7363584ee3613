#pragma once

#include <string>
#include <string_view>

/// @file
/// The characters that XML can contain, literally or as character references. A text with any other character
/// can't be parsed again, in whichever form it is written.
namespace plotsmith::dom {

/// Returns true if XML can contain the character. Excluded are most control characters, halves of surrogate
/// pairs, U+FFFE and U+FFFF.
constexpr bool IsXmlCharacter(char32_t c) {
  return c < 0x20 ? c == '\t' || c == '\n' || c == '\r'
                  : c < 0xD800 || (c >= 0xE000 && c < 0xFFFE) || (c >= 0x10000 && c < 0x110000);
}

/// Returns the text without the characters that XML can't contain. Invalid UTF-8 becomes U+FFFD.
std::string XmlCharactersOf(std::string_view text);

}  // namespace plotsmith::dom

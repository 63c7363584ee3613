#pragma once

#include <string>
#include <string_view>

/// @file
/// The characters that XML can hold, directly or by their numbers. A text with any other would not parse
/// again, whatever it was written as.
namespace plotsmith::dom {

/// Whether XML can hold a character: all but most control characters, halves of surrogate pairs, U+FFFE and
/// U+FFFF.
constexpr bool IsXmlCharacter(char32_t c) {
  return c < 0x20 ? c == '\t' || c == '\n' || c == '\r'
                  : c < 0xD800 || (c >= 0xE000 && c < 0xFFFE) || (c >= 0x10000 && c < 0x110000);
}

/// The text without the characters that XML can't hold; bytes that are no UTF-8 become U+FFFD.
std::string XmlCharactersOf(std::string_view text);

}  // namespace plotsmith::dom

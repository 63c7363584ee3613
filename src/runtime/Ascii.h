#pragma once

/// Characters of file formats, which know ASCII alone, whatever the locale.
namespace plotsmith::ascii {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
constexpr char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
constexpr bool IsLetter(char c) { return Lower(c) >= 'a' && Lower(c) <= 'z'; }
/// What XML takes for space.
constexpr bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

}  // namespace plotsmith::ascii

#pragma once

#include <string>
#include <string_view>

/// Character functions for file formats. They handle ASCII only, independent of the locale.
namespace plotsmith::ascii {

/// Returns true for 0 to 9.
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }
/// Converts A to Z to lower case; returns other characters unchanged.
constexpr char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
/// Converts a to z to upper case; returns other characters unchanged.
constexpr char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
/// Returns a text with A to Z in lower case.
inline std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) c = Lower(c);
  return lower;
}
/// Returns true for A to Z and a to z.
constexpr bool IsLetter(char c) { return Lower(c) >= 'a' && Lower(c) <= 'z'; }
/// Returns true for the white space of XML: blank, tab, line feed and carriage return.
constexpr bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

}  // namespace plotsmith::ascii

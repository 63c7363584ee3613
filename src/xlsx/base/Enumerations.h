#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace plotsmith::xlsx {

/// A member of one of Excel's enumerations, and its token in the file format.
struct EnumerationEntry {
  std::int32_t number;     ///< The number in Excel's object model.
  std::string_view name;   ///< The name in Excel's object model.
  std::string_view token;  ///< The token in the file.
};

/// An enumeration. If several entries have the same number or token, the first one counts.
struct Enumeration {
  std::span<const EnumerationEntry> entries;  ///< The members.
  std::string_view absent;                    ///< The token for an absent attribute; empty if there is none.

  /// Returns the token of a number, or nothing if the enumeration lacks the number.
  std::optional<std::string_view> Token(std::int32_t number) const {
    for (const EnumerationEntry& entry : entries) {
      if (entry.number == number) return entry.token;
    }
    return std::nullopt;
  }
  /// Returns the number of a token, or nothing if the enumeration lacks the token.
  std::optional<std::int32_t> Number(std::string_view token) const {
    for (const EnumerationEntry& entry : entries) {
      if (entry.token == token) return entry.number;
    }
    return std::nullopt;
  }
};

}  // namespace plotsmith::xlsx

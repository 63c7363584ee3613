#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

namespace plotsmith::xlsx {

/// A member of one of Excel's enumerations and how the file format says it.
struct EnumerationEntry {
  std::int32_t number;     ///< Excel's
  std::string_view name;   ///< Excel's
  std::string_view token;  ///< the file format's
};

/// One enumeration: the first entry of a number, or of a token, is the one that counts.
struct Enumeration {
  std::span<const EnumerationEntry> entries;
  std::string_view absent;  ///< the token that holds where the file says nothing; empty if there is none

  std::optional<std::string_view> Token(std::int32_t number) const {
    for (const EnumerationEntry& entry : entries) {
      if (entry.number == number) return entry.token;
    }
    return std::nullopt;
  }
  std::optional<std::int32_t> Number(std::string_view token) const {
    for (const EnumerationEntry& entry : entries) {
      if (entry.token == token) return entry.number;
    }
    return std::nullopt;
  }
};

}  // namespace plotsmith::xlsx

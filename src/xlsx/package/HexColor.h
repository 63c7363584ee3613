#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Colours as files write them (ST_HexColorRGB, ST_UnsignedIntHex).
namespace plotsmith::xlsx {

/// Returns "RRGGBB" for one of Excel's colours (red + 256 * green + 65536 * blue).
std::string RgbText(std::int32_t color);
/// Reads "RRGGBB" or "AARRGGBB". Returns nothing for any other text.
std::optional<std::int32_t> ParseRgb(std::string_view text);

/// Returns true if a number is one of Excel's colours.
constexpr bool IsColor(std::int32_t value) { return value >= 0 && value <= 0xFFFFFF; }

}  // namespace plotsmith::xlsx

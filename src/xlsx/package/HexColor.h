#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Colours as files write them (ST_HexColorRGB, ST_UnsignedIntHex).
namespace plotsmith::xlsx {

/// Excel's colour (red + 256 * green + 65536 * blue) as the file writes it, "RRGGBB".
std::string RgbText(std::int32_t color);
/// From "RRGGBB", or "AARRGGBB".
std::optional<std::int32_t> ParseRgb(std::string_view text);

/// Whether a number is one of Excel's colours.
constexpr bool IsColor(std::int32_t value) { return value >= 0 && value <= 0xFFFFFF; }

}  // namespace plotsmith::xlsx

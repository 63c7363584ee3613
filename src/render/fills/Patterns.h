#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace plotsmith::render {

/// The tile of a preset pattern: eight rows from the top, with the highest bit of each on the left. A set bit
/// is a pixel of the foreground.
using PatternTile = std::array<std::uint8_t, 8>;

/// The edge of a pattern's pixel, in points. Patterns are made for screens of 96 dpi.
inline constexpr double kPatternPixel = 0.75;
/// The edge of a tile, in pixels.
inline constexpr int kPatternSize = 8;

/// Returns the tile of a preset by its name in the file (ST_PresetPatternVal), or null for an unknown name.
const PatternTile* FindPattern(std::string_view preset);

}  // namespace plotsmith::render

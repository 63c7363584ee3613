#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace plotsmith::render {

/// The tile of a preset pattern: eight rows from the top, the highest bit of each on the left. A set bit
/// shows the foreground.
using PatternTile = std::array<std::uint8_t, 8>;

/// The edge of a pattern's pixel in points: patterns are made for a screen of 96 dots an inch.
inline constexpr double kPatternPixel = 0.75;
inline constexpr int kPatternSize = 8;

/// The tile of a preset by its name in the file (ST_PresetPatternVal); null for a name that is none.
const PatternTile* FindPattern(std::string_view preset);

}  // namespace plotsmith::render

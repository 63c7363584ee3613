#pragma once

#include <cstdint>
#include <vector>

namespace plotsmith::render {

/// A picture of opaque pixels.
struct Raster {
  /// The size in pixels.
  int width = 0, height = 0;
  /// The pixels as 0x00RRGGBB, row by row from the top.
  std::vector<std::uint32_t> values;
};

}  // namespace plotsmith::render

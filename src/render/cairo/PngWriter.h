#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace plotsmith::render {

/// The pixels of a picture, row by row from the top.
struct Pixels {
  /// The pixels as 0x00RRGGBB. The caller owns them.
  const std::uint32_t* data = nullptr;
  /// The size, and the distance between two rows, in pixels.
  std::size_t width = 0, height = 0, stride = 0;
};

/// Returns the bytes of a PNG picture. It has a palette if 256 colours are enough. `dpi` is the resolution
/// that is stored in the file.
std::string EncodePng(const Pixels& pixels, double dpi);

}  // namespace plotsmith::render

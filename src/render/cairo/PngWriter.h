#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace plotsmith::render {

/// The pixels of a picture as 0x00RRGGBB, row by row from the top. `stride` is the distance between two rows,
/// in pixels.
struct Pixels {
  const std::uint32_t* data = nullptr;
  std::size_t width = 0, height = 0, stride = 0;
};

/// Returns the bytes of a PNG picture. It has a palette if 256 colours are enough. `dpi` is the resolution
/// that is stored in the file.
std::string EncodePng(const Pixels& pixels, double dpi);

}  // namespace plotsmith::render

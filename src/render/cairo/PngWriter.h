#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace plotsmith::render {

/// Pixels of 32 bits, 0x00RRGGBB, row by row; `stride` counts pixels.
struct Pixels {
  const std::uint32_t* data = nullptr;
  std::size_t width = 0, height = 0, stride = 0;
};

/// The bytes of a PNG picture, with a palette if 256 colours are enough. `dpi` is what it says of its size.
std::string EncodePng(const Pixels& pixels, double dpi);

}  // namespace plotsmith::render

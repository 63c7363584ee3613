#pragma once

#include <cstdint>
#include <vector>

namespace plotsmith::render {

/// A picture without transparency, row by row from the top: red, green and blue in the lower three bytes of
/// each number, from the highest on.
struct Raster {
  int width = 0, height = 0;
  std::vector<std::uint32_t> values;
};

}  // namespace plotsmith::render

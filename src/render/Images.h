#pragma once

#include <optional>
#include <string_view>

namespace plotsmith::render {

/// The size of a picture.
struct ImageSize {
  /// The width and the height in pixels.
  double width = 0, height = 0;
};
/// Returns the size of a picture that can be drawn. Only PNG pictures can be drawn, because some output
/// formats support no other format. Returns nothing for other bytes, and for pictures of more than 8 MiB or
/// 16 million pixels.
std::optional<ImageSize> SizeOfImage(std::string_view bytes);
/// Returns true if the bytes are a picture that can be drawn.
bool IsDrawableImage(std::string_view bytes);

}  // namespace plotsmith::render

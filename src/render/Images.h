#pragma once

#include <optional>
#include <string_view>

namespace plotsmith::render {

/// The size of a picture.
struct ImageSize {
  double width = 0, height = 0;  ///< pixels
};
/// Returns the size of a picture that can be drawn. Only PNG can be, as not all painters know other kinds.
/// Returns nothing for other bytes, and for pictures of more than 8 MiB or 16 million pixels.
std::optional<ImageSize> SizeOfImage(std::string_view bytes);
/// Returns whether SizeOfImage knows the size of the bytes.
bool IsDrawableImage(std::string_view bytes);

}  // namespace plotsmith::render

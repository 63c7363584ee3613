#pragma once

#include <optional>
#include <string_view>

namespace plotsmith::render {

struct ImageSize {
  double width = 0, height = 0;  ///< pixels
};
/// The size of a PNG picture that can be drawn; nothing for other bytes.
std::optional<ImageSize> SizeOfImage(std::string_view bytes);
/// Whether the bytes are a PNG picture of a size that can be drawn: the only kind that all painters know.
bool IsDrawableImage(std::string_view bytes);

}  // namespace plotsmith::render

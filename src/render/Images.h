#pragma once

#include <string_view>

namespace plotsmith::render {

/// Whether the bytes are a PNG picture of a size that can be drawn: the only kind that all painters know.
bool IsDrawableImage(std::string_view bytes);

}  // namespace plotsmith::render

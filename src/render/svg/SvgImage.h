#pragma once

#include <string>

#include "render/Drawing.h"

namespace plotsmith::render {

/// The element of a PNG picture, which holds the picture itself; nothing for what is none.
std::string ImageElement(const ImageItem& image);

}  // namespace plotsmith::render

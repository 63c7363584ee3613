#pragma once

#include <string>

#include "render/Drawing.h"

namespace plotsmith::render {

/// Returns the image element of a PNG picture, which contains the picture. Returns an empty text if the
/// picture can't be drawn.
std::string ImageElement(const ImageItem& image);

}  // namespace plotsmith::render

#pragma once

#include <string>

#include "pages/pictures/Picture.h"

namespace plotsmith::pictures {

/// Returns the picture as an SVG 1.1 document. The unit is points, and lengths are rounded to tenths.
std::string Svg(const Picture& oPicture);

}  // namespace plotsmith::pictures

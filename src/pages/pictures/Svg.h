#pragma once

#include <string>

#include "pages/pictures/Picture.h"

namespace plotsmith::pictures {

/// The picture as a document in SVG 1.1, in points, lengths rounded to tenths.
std::string Svg(const Picture& oPicture);

}  // namespace plotsmith::pictures

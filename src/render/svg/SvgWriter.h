#pragma once

#include <string>

#include "render/Drawing.h"

namespace plotsmith::render {

/// The drawing as SVG 1.1: texts are texts, and it has a title and a description. Its size is in points, so
/// that it is as large on a page as the chart is. Several can be put into one page: their ids differ.
std::string MakeSvg(const Drawing& drawing);

}  // namespace plotsmith::render

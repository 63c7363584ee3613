#pragma once

#include <string>

#include "render/Drawing.h"

namespace plotsmith::render {

/// Returns a drawing as SVG 1.1. Texts stay texts, and the file has a title and a description. Its size is in
/// points, so the drawing is as large on a page as the chart in Excel. Several drawings can be embedded in
/// one page, because their ids differ.
std::string MakeSvg(const Drawing& drawing);

}  // namespace plotsmith::render

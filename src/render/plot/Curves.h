#pragma once

#include <vector>

#include "render/Drawing.h"

namespace plotsmith::render {

/// The points of a dense line that can be told apart: of those that share half a point across, the first, the
/// least, the greatest and the last.
std::vector<Point> Thinned(const std::vector<Point>& points);

/// Adds a line through points, straight or smooth as Excel smooths it. Neighbours that no picture could tell
/// apart are left out.
void AddCurve(Path& path, const std::vector<Point>& points, bool smooth);

}  // namespace plotsmith::render

#pragma once

#include <vector>

#include "render/Drawing.h"

namespace plotsmith::render {

/// Adds a line through points, straight or smooth as Excel smooths it. Neighbours that no picture could tell
/// apart are left out.
void AddCurve(Path& path, const std::vector<Point>& points, bool smooth);

}  // namespace plotsmith::render

#pragma once

#include <vector>

#include "render/Drawing.h"

namespace plotsmith::render {

/// Returns the points of a line without those that aren't visible in a dense line. The points are divided
/// horizontally into columns, each 0.5 points wide. The first, the lowest, the highest and the last of each
/// column are kept.
std::vector<Point> Thinned(const std::vector<Point>& points);

/// Adds a line through points to a path. It is straight, or smooth as Excel smooths lines. Dense lines are
/// thinned out.
void AddCurve(Path& path, const std::vector<Point>& points, bool smooth);

}  // namespace plotsmith::render

#pragma once

#include <span>

#include "render/threed/Projection.h"

namespace plotsmith::render {

/// The brightness of faces by their direction, as a share of the colour.
inline constexpr double kFrontLight = 1, kTopLight = 0.85, kSideLight = 0.7, kBottomLight = 0.6;

/// Returns the direction that a plane face looks in, as a vector of length 1. Seen from outside, `corners` go
/// counter-clockwise. A face without an area looks to the front.
Point3 NormalOf(std::span<const Point3> corners);
/// Returns the brightness of a face that looks in a direction, which is a vector of length 1.
double LightOf(const Point3& normal);

}  // namespace plotsmith::render

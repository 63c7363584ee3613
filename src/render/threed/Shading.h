#pragma once

#include <span>

#include "render/threed/Projection.h"

namespace plotsmith::render {

/// How bright faces of a body are, as shares of the colour.
inline constexpr double kFrontLight = 1, kTopLight = 0.85, kSideLight = 0.7, kBottomLight = 0.6;

/// The direction that a plane face looks in, of the length 1. `corners` go counter-clockwise for those who
/// look at it from outside. A face without an area looks to the front.
Point3 NormalOf(std::span<const Point3> corners);
/// How bright a face is that looks in a direction.
double LightOf(const Point3& normal);

}  // namespace plotsmith::render

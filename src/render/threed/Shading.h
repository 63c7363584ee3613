#pragma once

#include <span>

#include "render/threed/Projection.h"

namespace plotsmith::render {

/// The brightness of faces by direction, as shares of the colour.
inline constexpr double kFrontLight = 1, kTopLight = 0.85, kSideLight = 0.7, kBottomLight = 0.6;

/// Returns the normal of a plane face, as a vector of length 1. Seen from outside, `corners` are in
/// counter-clockwise order. The normal of a face without an area points to the front.
Point3 NormalOf(std::span<const Point3> corners);
/// Returns the brightness of a face. `normal` is a vector of length 1.
double LightOf(const Point3& normal);

}  // namespace plotsmith::render

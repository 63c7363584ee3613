#pragma once

#include <optional>
#include <pugixml.hpp>

#include "render/Drawing.h"

namespace plotsmith::render {

/// The outline of a shape.
struct ShapeForm {
  Path path;          ///< The outline, in points on the picture.
  bool open = false;  ///< Whether the shape is a line, which has no fill.
};

/// Returns the outline of a preset geometry (a:prstGeom) with its adjustments in a frame. Returns nothing if
/// the geometry isn't known.
std::optional<ShapeForm> FormOf(pugi::xml_node geometry, const Rect& frame);

}  // namespace plotsmith::render

#pragma once

#include <optional>
#include <pugixml.hpp>

#include "render/Drawing.h"

namespace plotsmith::render {

/// The form of a shape.
struct ShapeForm {
  Path path;
  bool open = false;  ///< a line, which has no inside
};

/// The form that a geometry (a:prstGeom with its adjustments) has in a frame; nothing for one that isn't
/// known.
std::optional<ShapeForm> FormOf(pugi::xml_node geometry, const Rect& frame);

}  // namespace plotsmith::render

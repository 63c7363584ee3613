#pragma once

#include <optional>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "render/Shadow.h"
#include "render/model/StyleReader.h"

namespace plotsmith::render {

/// Reads the outer shadow in shape properties (c:spPr, a:effectLst). Returns `automatic` if the properties
/// have no effects.
std::optional<Shadow> ReadShadow(const Palette& palette, pugi::xml_node properties,
                                 const std::optional<Shadow>& automatic);

/// Returns a sentence for each kind of effect that the part contains and that isn't drawn.
std::vector<std::string> MissingEffects(pugi::xml_node part);

}  // namespace plotsmith::render

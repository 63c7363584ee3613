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

/// The elements of formats that few charts have.
struct RareLooks {
  std::vector<pugi::xml_node> pictures;  ///< a:blipFill
  std::vector<pugi::xml_node> effects;   ///< a:effectLst, a:effectDag and a:sp3d
};

/// Finds the elements in a part or a shape. Caches of data, which most of a chart part consists of, are
/// skipped.
RareLooks FindRareLooks(pugi::xml_node root);

/// Returns a sentence for each kind of effect that isn't drawn.
std::vector<std::string> MissingEffects(const RareLooks& looks);

}  // namespace plotsmith::render

#pragma once

#include <pugixml.hpp>

namespace plotsmith::dom {

/// Returns true if elements are nested deeper than `limit`. pugixml destroys branches recursively (but not
/// whole documents), so a document that nests without bound must not be modified. The check needs the parsed
/// tree, because only the parser knows which parts of a text are elements.
bool NestsDeeperThan(const pugi::xml_document& document, int limit);

}  // namespace plotsmith::dom

#pragma once

#include <pugixml.hpp>

namespace plotsmith::dom {

/// Whether elements nest deeper than `limit`. Branches are torn down by recursion (whole documents aren't),
/// so a text that nests without bound must not be worked on. The tree is asked and not the text, as only who
/// read the text knows what in it is an element.
bool NestsDeeperThan(const pugi::xml_document& document, int limit);

}  // namespace plotsmith::dom

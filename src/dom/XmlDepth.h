#pragma once

#include <string_view>

namespace plotsmith::dom {

/// Whether elements nest deeper than `limit`. Trees are torn down by recursion, so a text that nests without
/// bound must not become one. Reads the text once and takes no memory.
bool NestsDeeperThan(std::string_view xml, int limit);

}  // namespace plotsmith::dom

#pragma once

#include <string_view>

namespace plotsmith::render {

/// The font that takes the place of one that isn't installed: one with the same widths where there is one,
/// else the one that comes nearest. Never empty.
std::string_view SubstituteFor(std::string_view family);
/// The generic family of CSS that a font belongs to: "serif", "sans-serif" or "monospace".
std::string_view GenericFamilyOf(std::string_view family);

}  // namespace plotsmith::render

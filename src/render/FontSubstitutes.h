#pragma once

#include <string_view>

namespace plotsmith::render {

/// Returns the font that replaces one that isn't installed. It has the same widths if there is such a font;
/// otherwise it is the most similar one. Never empty.
std::string_view SubstituteFor(std::string_view family);
/// Returns the generic family of CSS that a font belongs to: "serif", "sans-serif" or "monospace".
std::string_view GenericFamilyOf(std::string_view family);

}  // namespace plotsmith::render

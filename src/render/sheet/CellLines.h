#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace plotsmith::render {

/// Returns the width of a text, in points.
using WidthOf = std::function<double(std::string_view)>;

/// Wraps a text at a width in points. Lines end at line feeds, at spaces, between East Asian characters, and
/// inside words that are wider than a line.
std::vector<std::string> WrappedLines(std::string_view text, double width, const WidthOf& widthOf);

}  // namespace plotsmith::render

#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace plotsmith::render {

/// The width of a text in points.
using WidthOf = std::function<double(std::string_view)>;

/// The lines of a text that wraps at a width: at blanks, inside of a word only where that is wider than a
/// line. Line feeds of the text begin lines as well.
std::vector<std::string> WrappedLines(std::string_view text, double width, const WidthOf& widthOf);

/// What a number shows in a cell that its text is too wide for: with fewer decimals, where it has no format
/// of its own (`general`), or as many "#" as fit.
std::string FittedNumber(double number, const std::string& text, bool general, double width,
                         const WidthOf& widthOf);

}  // namespace plotsmith::render

#pragma once

#include <string>
#include <string_view>

namespace plotsmith::xlsx {

/// How a text is set.
struct TextFace {
  std::string font;
  double size = 10;  ///< points
  bool bold = false;
};

/// The width of a text of one line, in points. Known for the characters of Western Europe in fonts with the
/// widths of Arial and of Calibri; the rest is estimated.
double TextWidth(std::string_view text, const TextFace& face);
/// From one line to the next, in points.
double LineHeight(const TextFace& face);

}  // namespace plotsmith::xlsx

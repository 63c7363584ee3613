#pragma once

#include <string>
#include <string_view>

namespace plotsmith::xlsx {

/// The typeface of a text.
struct TextFace {
  std::string font;   ///< The name of the font.
  double size = 10;   ///< The size in points.
  bool bold = false;  ///< Whether the text is bold.
};

/// Returns the width of a text in one line, in points. It is exact for Western European characters in fonts
/// with the widths of Arial or Calibri, and an estimate for others.
double TextWidth(std::string_view text, const TextFace& face);
/// Returns the distance from one line to the next, in points.
double LineHeight(const TextFace& face);

}  // namespace plotsmith::xlsx

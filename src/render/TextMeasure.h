#pragma once

#include <string_view>

#include "render/Drawing.h"

namespace plotsmith::render {

/// The size of one line of text, in points.
struct TextExtent {
  /// The advance of the text, which can differ from the extent of its ink.
  double width = 0;
  /// The ascent and the descent of the font, which are the same for all texts.
  double ascent = 0, descent = 0;

  /// The height of the line.
  double Height() const { return ascent + descent; }
};

/// Measures lines of text.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  /// Returns the size of a line of text (UTF-8) in a font, or in its substitute if it isn't installed.
  virtual TextExtent Measure(std::string_view line, const Font& font) const = 0;
  /// Returns true if any font is installed. Without fonts, characters are boxes, or texts are invisible.
  virtual bool HasFonts() const = 0;
};

}  // namespace plotsmith::render

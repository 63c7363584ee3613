#pragma once

#include <string_view>

#include "render/Drawing.h"

namespace plotsmith::render {

/// The size of one line of text, in points.
struct TextExtent {
  double width = 0;
  double ascent = 0, descent = 0;  ///< of the font; the text makes no difference

  double Height() const { return ascent + descent; }
};

/// Measures texts with a font.
class TextMeasure {
 public:
  virtual ~TextMeasure() = default;
  virtual TextExtent Measure(std::string_view line, const Font& font) const = 0;
};

}  // namespace plotsmith::render

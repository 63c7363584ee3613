#pragma once

#include <string_view>

#include "render/fonts/Fonts.h"

typedef struct _cairo cairo_t;

namespace plotsmith::render {

/// Fonts whose texts can be drawn with Cairo.
class CairoFonts final : public Fonts {
 public:
  /// Makes an object with empty caches.
  CairoFonts();

  /// Draws a line of text with the current source. Its baseline begins at the current origin.
  void Show(cairo_t* cr, std::string_view line, const Font& font) const;
};

}  // namespace plotsmith::render

#pragma once

#include <string_view>

#include "render/cairo/PangoTexts.h"
#include "render/fonts/PlainFonts.h"

typedef struct _cairo cairo_t;

namespace plotsmith::render {

/// Fonts whose texts can be drawn with Cairo.
class CairoFonts final : public TextMeasure {
 public:
  /// Makes an object with empty caches.
  CairoFonts();

  TextExtent Measure(std::string_view line, const Font& font) const override;
  bool HasFonts() const override;
  /// Draws a line of text with the current source. Its baseline begins at the current origin.
  void Show(cairo_t* cr, std::string_view line, const Font& font) const;

 private:
  /// Before the texts, because Pango would read the list of fonts in a thread of its own.
  PlainFonts plain_;
  PangoTexts texts_;
};

}  // namespace plotsmith::render

#include "render/cairo/CairoFonts.h"

#include <pango/pangocairo.h>

namespace plotsmith::render {

CairoFonts::CairoFonts() : plain_([this]() -> const TextMeasure& { return texts_; }) {}

TextExtent CairoFonts::Measure(std::string_view line, const Font& font) const {
  return plain_.Measure(line, font);
}

bool CairoFonts::HasFonts() const { return plain_.HasFonts(); }

void CairoFonts::Show(cairo_t* cr, std::string_view line, const Font& font) const {
  texts_.WithGlyphs(line, font, [cr](PangoLayoutLine* glyphs) {
    cairo_move_to(cr, 0, 0);
    pango_cairo_show_layout_line(cr, glyphs);
  });
}

}  // namespace plotsmith::render

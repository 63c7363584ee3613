#include "render/cairo/CairoFonts.h"

#include <pango/pangocairo.h>

namespace plotsmith::render {
namespace {

constexpr double kPointsPerInch = 72;  // A unit of the picture is a point.

/// Returns a context that loads fonts for Cairo.
PangoContext* NewCairoContext() {
  PangoFontMap* map = pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT);
  pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(map), kPointsPerInch);
  PangoContext* context = pango_font_map_create_context(map);
  g_object_unref(map);  // The context holds it.
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
  pango_cairo_context_set_font_options(context, options);
  cairo_font_options_destroy(options);
  return context;
}

}  // namespace

CairoFonts::CairoFonts() : Fonts(NewCairoContext()) {}

void CairoFonts::Show(cairo_t* cr, std::string_view line, const Font& font) const {
  WithGlyphs(line, font, [cr](PangoLayoutLine* glyphs) {
    cairo_move_to(cr, 0, 0);
    pango_cairo_show_layout_line(cr, glyphs);
  });
}

}  // namespace plotsmith::render

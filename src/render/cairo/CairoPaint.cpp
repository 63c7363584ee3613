#include "render/cairo/CairoPaint.h"

#include <cairo.h>

namespace plotsmith::render {
namespace {

void SetColor(cairo_t* cr, const Color& color) {
  cairo_set_source_rgba(cr, color.red / 255.0, color.green / 255.0, color.blue / 255.0, color.alpha);
}

}  // namespace

bool SetSource(cairo_t* cr, const Fill& fill, const Rect& bounds) {
  static_cast<void>(bounds);
  if (const auto* solid = std::get_if<SolidFill>(&fill)) {
    SetColor(cr, solid->color);
  } else if (const auto* gradient = std::get_if<GradientFill>(&fill)) {
    if (gradient->stops.empty()) return false;
    SetColor(cr, gradient->stops.front().color);
  } else if (const auto* pattern = std::get_if<PatternFill>(&fill)) {
    SetColor(cr, pattern->background);
  } else {
    return false;
  }
  return true;
}

}  // namespace plotsmith::render

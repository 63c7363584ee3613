#include "render/cairo/CairoPaint.h"

#include <array>
#include <cairo.h>
#include <cmath>
#include <cstdint>
#include <memory>

#include "render/fills/GradientGeometry.h"
#include "render/fills/Patterns.h"

namespace plotsmith::render {
namespace {

struct DestroyPattern {
  void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};
using Pattern = std::unique_ptr<cairo_pattern_t, DestroyPattern>;

void SetGradient(cairo_t* cr, const GradientFill& gradient, const Rect& bounds) {
  if (!(bounds.width > 0 && bounds.height > 0)) return SetColor(cr, gradient.stops.front().color);
  Pattern pattern;
  if (gradient.radial) {
    const Point focus = gradient.focus;
    pattern.reset(cairo_pattern_create_radial(focus.x, focus.y, 0, focus.x, focus.y, UnitRadiusOf(gradient)));
    cairo_matrix_t matrix;
    cairo_matrix_init_scale(&matrix, 1 / bounds.width, 1 / bounds.height);
    cairo_matrix_translate(&matrix, -bounds.left, -bounds.top);
    cairo_pattern_set_matrix(pattern.get(), &matrix);
  } else {
    const GradientLine line = LineOf(gradient, bounds);
    pattern.reset(cairo_pattern_create_linear(line.from.x, line.from.y, line.to.x, line.to.y));
  }
  for (const GradientStop& stop : gradient.stops) {
    const Color& color = stop.color;
    cairo_pattern_add_color_stop_rgba(pattern.get(), stop.position, color.red / 255.0, color.green / 255.0,
                                      color.blue / 255.0, color.alpha);
  }
  cairo_set_source(cr, pattern.get());
}

/// Returns a pixel as Cairo stores it: 0xAARRGGBB with the channels multiplied by the opacity.
std::uint32_t PixelOf(const Color& color) {
  const auto byte = [&](double channel) {
    return static_cast<std::uint32_t>(std::lround(channel * color.alpha));
  };
  return byte(255) << 24 | byte(color.red) << 16 | byte(color.green) << 8 | byte(color.blue);
}

void SetPattern(cairo_t* cr, const PatternFill& fill, const PatternTile& tile) {
  const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kPatternSize, kPatternSize));
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return SetColor(cr, fill.background);
  unsigned char* rows = cairo_image_surface_get_data(surface.get());
  const int stride = cairo_image_surface_get_stride(surface.get());
  const std::uint32_t foreground = PixelOf(fill.foreground), background = PixelOf(fill.background);
  for (int y = 0; y < kPatternSize; ++y) {
    auto* row = reinterpret_cast<std::uint32_t*>(rows + static_cast<std::ptrdiff_t>(y) * stride);
    for (int x = 0; x < kPatternSize; ++x) {
      row[x] =
          (tile[static_cast<std::size_t>(y)] >> (kPatternSize - 1 - x) & 1) != 0 ? foreground : background;
    }
  }
  cairo_surface_mark_dirty(surface.get());
  const Pattern pattern(cairo_pattern_create_for_surface(surface.get()));
  cairo_pattern_set_extend(pattern.get(), CAIRO_EXTEND_REPEAT);
  cairo_matrix_t matrix;
  cairo_matrix_init_scale(&matrix, 1 / kPatternPixel, 1 / kPatternPixel);
  cairo_pattern_set_matrix(pattern.get(), &matrix);
  // If the edge of a pattern's pixel is a whole number of the picture's pixels, the pattern is drawn sharp.
  // Otherwise its pixels would have different sizes, so they are smoothed.
  double scale = kPatternPixel, unused = 0;
  cairo_user_to_device_distance(cr, &scale, &unused);
  const bool whole = std::abs(scale - std::round(scale)) < 0.01 && scale > 0.5;
  cairo_pattern_set_filter(pattern.get(), whole ? CAIRO_FILTER_NEAREST : CAIRO_FILTER_GOOD);
  cairo_set_source(cr, pattern.get());
}

}  // namespace

void SetColor(cairo_t* cr, const Color& color) {
  cairo_set_source_rgba(cr, color.red / 255.0, color.green / 255.0, color.blue / 255.0, color.alpha);
}

void Trace(cairo_t* cr, const Path& path) {
  cairo_new_path(cr);
  for (const PathStep& step : path.Steps()) {
    switch (step.kind) {
      case PathStep::Kind::kMove:
        cairo_move_to(cr, step.to.x, step.to.y);
        break;
      case PathStep::Kind::kLine:
        cairo_line_to(cr, step.to.x, step.to.y);
        break;
      case PathStep::Kind::kCurve:
        cairo_curve_to(cr, step.control1.x, step.control1.y, step.control2.x, step.control2.y, step.to.x,
                       step.to.y);
        break;
      case PathStep::Kind::kClose:
        cairo_close_path(cr);
        break;
    }
  }
}

bool SetSource(cairo_t* cr, const Fill& fill, const Rect& bounds) {
  if (const auto* solid = std::get_if<SolidFill>(&fill)) {
    SetColor(cr, solid->color);
  } else if (const auto* gradient = std::get_if<GradientFill>(&fill)) {
    if (gradient->stops.empty()) return false;
    SetGradient(cr, *gradient, bounds);
  } else if (const auto* pattern = std::get_if<PatternFill>(&fill)) {
    const PatternTile* tile = FindPattern(pattern->preset);
    tile != nullptr ? SetPattern(cr, *pattern, *tile) : SetColor(cr, pattern->background);
  } else {
    return false;
  }
  return true;
}

}  // namespace plotsmith::render

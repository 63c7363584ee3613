#include "render/cairo/CairoImage.h"

#include <cairo.h>
#include <cstring>
#include <string_view>

#include "render/Images.h"
#include "render/cairo/CairoPaint.h"

namespace plotsmith::render {
namespace {

/// Copies the next bytes from the front of a std::string_view and removes them from it.
cairo_status_t Take(void* rest, unsigned char* data, unsigned length) {
  auto& bytes = *static_cast<std::string_view*>(rest);
  if (bytes.size() < length) return CAIRO_STATUS_READ_ERROR;
  std::memcpy(data, bytes.data(), length);
  bytes.remove_prefix(length);
  return CAIRO_STATUS_SUCCESS;
}

}  // namespace

void PaintImage(cairo_t* cr, const ImageItem& image) {
  if (!IsDrawableImage(image.bytes)) return;
  std::string_view rest = image.bytes;
  const Surface surface(cairo_image_surface_create_from_png_stream(Take, &rest));
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return;
  const Rect& place = image.place;
  if (!(place.width > 0 && place.height > 0)) return;
  cairo_save(cr);
  cairo_translate(cr, place.left, place.top);
  cairo_scale(cr, place.width / cairo_image_surface_get_width(surface.get()),
              place.height / cairo_image_surface_get_height(surface.get()));
  cairo_set_source_surface(cr, surface.get(), 0, 0);
  cairo_paint(cr);
  cairo_restore(cr);
}

}  // namespace plotsmith::render

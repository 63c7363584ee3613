#include "render/cairo/CairoShadow.h"

#include <algorithm>
#include <cairo.h>
#include <cmath>
#include <memory>
#include <vector>

#include "render/cairo/CairoPaint.h"

namespace plotsmith::render {
namespace {

/// Paints the area and the line of a shadow in opaque black. Where they overlap, the shadow isn't darker.
void PaintForm(cairo_t* cr, const ShadowItem& item) {
  cairo_set_source_rgba(cr, 0, 0, 0, 1);
  Trace(cr, item.path);
  if (item.filled) cairo_fill_preserve(cr);
  if (item.lineWidth > 0) {
    cairo_set_line_width(cr, item.lineWidth);
    cairo_stroke_preserve(cr);
  }
  cairo_new_path(cr);
}

/// The bytes of a mask in rows.
struct Mask {
  unsigned char* data;
  int width, height, stride;
};

/// Replaces each byte of a line by the mean of the bytes up to `reach` away.
void AverageLine(unsigned char* line, int count, std::ptrdiff_t step, int reach,
                 std::vector<unsigned char>& scratch) {
  const int width = 2 * reach + 1;
  for (int i = 0; i < count; ++i) scratch[static_cast<std::size_t>(i)] = line[i * step];
  const auto at = [&](int i) { return i >= 0 && i < count ? scratch[static_cast<std::size_t>(i)] : 0; };
  int sum = 0;
  for (int i = 0; i < reach; ++i) sum += at(i);
  for (int i = 0; i < count; ++i) {
    sum += at(i + reach) - at(i - reach - 1);
    line[i * step] = static_cast<unsigned char>((sum + width / 2) / width);
  }
}

/// Blurs with means in three passes, which together approximate a normal distribution.
void Blur(const Mask& mask, double deviation) {
  constexpr int kPasses = 3;
  // The variance of a mean over 2r + 1 pixels is r(r + 1) / 3.
  const int reach =
      std::max(static_cast<int>(std::lround((std::sqrt(1 + 4 * deviation * deviation) - 1) / 2)), 1);
  std::vector<unsigned char> scratch(static_cast<std::size_t>(std::max(mask.width, mask.height)));
  for (int pass = 0; pass < kPasses; ++pass) {
    for (int y = 0; y < mask.height; ++y) {
      AverageLine(mask.data + static_cast<std::ptrdiff_t>(y) * mask.stride, mask.width, 1, reach, scratch);
    }
    for (int x = 0; x < mask.width; ++x) AverageLine(mask.data + x, mask.height, mask.stride, reach, scratch);
  }
}

/// Returns the rectangle in which a shadow with its soft edge may be visible; empty if it is invisible.
Rect SeenOf(cairo_t* cr, const ShadowItem& item, double reach) {
  const Rect bounds = item.path.Bounds();
  const double around = reach + item.lineWidth;
  double left = 0, top = 0, right = 0, bottom = 0;
  cairo_clip_extents(cr, &left, &top, &right, &bottom);
  left = std::max(left - reach, bounds.left - around);
  top = std::max(top - reach, bounds.top - around);
  right = std::min(right + reach, bounds.Right() + around);
  bottom = std::min(bottom + reach, bounds.Bottom() + around);
  return right > left && bottom > top ? Rect{left, top, right - left, bottom - top} : Rect();
}

/// Returns the number of the mask's pixels in a point: that of the picture, or enough for a page. Softer
/// edges need fewer pixels. The mask isn't larger than Cairo allows.
double ResolutionOf(cairo_t* cr, const Rect& seen, double deviation) {
  constexpr double kLeast = 2, kMostPixels = 1e7, kLongestEdge = 32'000, kOfDeviation = 4;
  double across = 1, down = 0;
  cairo_user_to_device_distance(cr, &across, &down);
  const double scale = std::min(std::max(std::hypot(across, down), kLeast), kOfDeviation / deviation);
  return std::min({scale, std::sqrt(kMostPixels / (seen.width * seen.height)),
                   kLongestEdge / std::max(seen.width, seen.height)});
}

void PaintSoft(cairo_t* cr, const ShadowItem& item) {
  constexpr double kReach = 3;  // standard deviations beyond which a soft edge is invisible
  const Rect seen = SeenOf(cr, item, kReach * item.blur);
  if (!(seen.width > 0)) return;
  const double scale = ResolutionOf(cr, seen, item.blur);
  const int width = static_cast<int>(std::ceil(seen.width * scale)) + 1;
  const int height = static_cast<int>(std::ceil(seen.height * scale)) + 1;
  const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_A8, width, height));
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return;
  const Context mask(cairo_create(surface.get()));
  cairo_scale(mask.get(), scale, scale);
  cairo_translate(mask.get(), -seen.left, -seen.top);
  PaintForm(mask.get(), item);
  cairo_surface_flush(surface.get());
  Blur({cairo_image_surface_get_data(surface.get()), width, height,
        cairo_image_surface_get_stride(surface.get())},
       item.blur * scale);
  cairo_surface_mark_dirty(surface.get());
  cairo_save(cr);
  SetColor(cr, item.color);
  cairo_translate(cr, seen.left, seen.top);
  cairo_scale(cr, 1 / scale, 1 / scale);
  cairo_mask_surface(cr, surface.get(), 0, 0);
  cairo_restore(cr);
}

}  // namespace

void PaintShadow(cairo_t* cr, const ShadowItem& item) {
  if (item.blur > 0) return PaintSoft(cr, item);
  cairo_push_group_with_content(cr, CAIRO_CONTENT_ALPHA);
  PaintForm(cr, item);
  cairo_pattern_t* form = cairo_pop_group(cr);
  SetColor(cr, item.color);
  cairo_mask(cr, form);
  cairo_pattern_destroy(form);
}

}  // namespace plotsmith::render

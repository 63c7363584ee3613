#include "render/cairo/CairoPainter.h"

#include <algorithm>
#include <cairo-pdf.h>
#include <cairo.h>
#include <cmath>
#include <memory>
#include <new>
#include <numbers>
#include <optional>
#include <stdexcept>
#include <utility>

#include "render/cairo/CairoImage.h"
#include "render/cairo/CairoPaint.h"
#include "render/cairo/CairoShadow.h"
#include "render/cairo/PixelGrid.h"
#include "render/cairo/PngWriter.h"

namespace plotsmith::render {
namespace {

/// Appends data to a std::string. No exception may pass through Cairo, which is written in C.
cairo_status_t Append(void* bytes, const unsigned char* data, unsigned length) {
  try {
    static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
    return CAIRO_STATUS_SUCCESS;
  } catch (const std::bad_alloc&) {
    return CAIRO_STATUS_NO_MEMORY;
  }
}

void SetStroke(cairo_t* cr, const Stroke& stroke) {
  SetColor(cr, stroke.color);
  cairo_set_line_width(cr, stroke.width);
  cairo_set_dash(cr, stroke.dashes.data(), static_cast<int>(stroke.dashes.size()), 0);
  cairo_set_line_cap(cr, stroke.cap == LineCap::kRound    ? CAIRO_LINE_CAP_ROUND
                         : stroke.cap == LineCap::kSquare ? CAIRO_LINE_CAP_SQUARE
                                                          : CAIRO_LINE_CAP_BUTT);
  cairo_set_line_join(cr, stroke.join == LineJoin::kRound   ? CAIRO_LINE_JOIN_ROUND
                          : stroke.join == LineJoin::kBevel ? CAIRO_LINE_JOIN_BEVEL
                                                            : CAIRO_LINE_JOIN_MITER);
}

/// Strokes a long line in pieces. Cairo searches a whole line for crossings at once, which takes minutes if
/// it has thousands of corners. Neighbouring pieces share a step, so that their joint isn't visible.
void StrokeInPieces(cairo_t* cr, const Path& path) {
  constexpr std::size_t kPiece = 12;
  const auto& steps = path.Steps();
  Path piece;
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const PathStep& step = steps[i];
    const bool begins = step.kind == PathStep::Kind::kMove;
    if (begins || piece.Steps().size() >= kPiece) {
      Trace(cr, piece);
      cairo_stroke(cr);
      piece = Path();
      if (!begins) piece.MoveTo(steps[i - 2].to).LineTo(steps[i - 1].to);
    }
    begins ? piece.MoveTo(step.to) : piece.LineTo(step.to);
  }
  Trace(cr, piece);
  cairo_stroke(cr);
}

/// Returns whether a line looks the same if it is stroked in pieces. It does if it has straight steps, an
/// opaque colour and no dashes.
bool MayBeStrokedInPieces(const PathItem& item) {
  constexpr std::size_t kLong = 200;
  const auto& steps = item.path.Steps();
  return steps.size() > kLong && item.stroke.dashes.empty() && item.stroke.color.alpha == 1 &&
         std::all_of(steps.begin(), steps.end(), [](const PathStep& step) {
           return step.kind == PathStep::Kind::kMove || step.kind == PathStep::Kind::kLine;
         });
}

class ItemPainter {
 public:
  /// With `pixels`, vertical and horizontal lines and edges are moved onto the pixels of a picture.
  ItemPainter(cairo_t* cr, const CairoFonts& fonts, std::optional<PixelScale> pixels)
      : cr_(cr), fonts_(fonts), pixels_(pixels) {}
  ~ItemPainter() {
    for (; clips_ > 0; --clips_) cairo_restore(cr_);
  }
  ItemPainter(const ItemPainter&) = delete;
  ItemPainter& operator=(const ItemPainter&) = delete;

  void Draw(const Item& item) {
    const auto* path = std::get_if<PathItem>(&item.content);
    const auto* clip = std::get_if<PushClip>(&item.content);
    // Markers keep their shape and their position on the line.
    if (pixels_ && path != nullptr && item.tag.role != Role::kMarker && IsUpright(path->path)) {
      DrawOnPixels(*path);
    } else if (pixels_ && clip != nullptr && IsUpright(clip->path)) {
      (*this)(PushClip{OnPixels(clip->path, *pixels_, 0)});
    } else {
      std::visit(*this, item.content);
    }
  }

  void operator()(const PathItem& item) {
    Trace(cr_, item.path);
    if (SetSource(cr_, item.fill, item.path.Bounds())) cairo_fill_preserve(cr_);
    if (item.stroke.width > 0) {
      SetStroke(cr_, item.stroke);
      if (MayBeStrokedInPieces(item)) {
        StrokeInPieces(cr_, item.path);
      } else {
        cairo_stroke_preserve(cr_);
      }
    }
    cairo_new_path(cr_);
  }
  void operator()(const TextItem& item) {
    cairo_save(cr_);
    cairo_translate(cr_, item.anchor.x, item.anchor.y);
    if (item.rotation != 0) cairo_rotate(cr_, item.rotation * std::numbers::pi / 180);
    if (item.align != TextAlign::kStart) {
      cairo_translate(cr_, item.align == TextAlign::kMiddle ? -item.width / 2 : -item.width, 0);
    }
    SetColor(cr_, item.color);
    fonts_.Show(cr_, item.text, item.font);
    cairo_restore(cr_);
  }
  void operator()(const PushClip& clip) {
    cairo_save(cr_);
    ++clips_;
    Trace(cr_, clip.path);
    cairo_clip(cr_);
  }
  void operator()(const PopClip&) {
    if (clips_ == 0) return;
    --clips_;
    cairo_restore(cr_);
  }
  void operator()(const ImageItem& item) { PaintImage(cr_, item); }
  void operator()(const ShadowItem& item) { PaintShadow(cr_, item); }

 private:
  void DrawOnPixels(const PathItem& item) {
    PathItem snapped{OnPixels(item.path, *pixels_, item.stroke.width), item.fill, item.stroke};
    const Rect box = snapped.path.Bounds();
    const bool isLost = !(item.stroke.width > 0) && !(box.width > 0 && box.height > 0);
    if (isLost) return (*this)(item);  // It is thinner than a pixel.
    if (item.stroke.width > 0) snapped.stroke.width = WidthOnPixels(item.stroke.width, *pixels_);
    (*this)(snapped);
  }

  cairo_t* cr_;
  const CairoFonts& fonts_;
  const std::optional<PixelScale> pixels_;
  int clips_ = 0;
};

void Check(cairo_status_t status) {
  if (status == CAIRO_STATUS_NO_MEMORY) throw std::bad_alloc();
  if (status != CAIRO_STATUS_SUCCESS) throw std::runtime_error(cairo_status_to_string(status));
}

void PaintItems(cairo_t* cr, const Drawing& drawing, const CairoFonts& fonts,
                std::optional<PixelScale> pixels) {
  cairo_set_miter_limit(cr, 4);
  ItemPainter painter(cr, fonts, pixels);
  for (const Item& item : drawing.items) painter.Draw(item);
}

}  // namespace

void Paint(cairo_t* cr, const Drawing& drawing, const CairoFonts& fonts) {
  PaintItems(cr, drawing, fonts, std::nullopt);
}

namespace {

/// Returns an image with the drawing on a white background.
Surface PaintedImage(const Drawing& drawing, const CairoFonts& fonts, double dpi) {
  constexpr double kMostPixels = 1e8;
  const double scale = dpi / 72;
  const double width = std::round(drawing.width * scale), height = std::round(drawing.height * scale);
  if (!(width >= 1 && height >= 1 && width <= 32767 && height <= 32767 && width * height <= kMostPixels)) {
    throw std::length_error("A picture of this size can't be made.");
  }
  Surface surface(
      cairo_image_surface_create(CAIRO_FORMAT_RGB24, static_cast<int>(width), static_cast<int>(height)));
  const Context cr(cairo_create(surface.get()));
  cairo_set_source_rgb(cr.get(), 1, 1, 1);
  cairo_paint(cr.get());
  const PixelScale perPoint{width / drawing.width, height / drawing.height};
  cairo_scale(cr.get(), perPoint.x, perPoint.y);
  PaintItems(cr.get(), drawing, fonts, perPoint);
  Check(cairo_status(cr.get()));
  cairo_surface_flush(surface.get());
  return surface;
}

/// Returns the pixels of a painted image.
Pixels PixelsOf(cairo_surface_t* image) {
  return {reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(image)),
          static_cast<std::size_t>(cairo_image_surface_get_width(image)),
          static_cast<std::size_t>(cairo_image_surface_get_height(image)),
          static_cast<std::size_t>(cairo_image_surface_get_stride(image)) / sizeof(std::uint32_t)};
}

}  // namespace

std::string MakePng(const Drawing& drawing, const CairoFonts& fonts, double dpi) {
  const Surface surface = PaintedImage(drawing, fonts, dpi);
  return EncodePng(PixelsOf(surface.get()), dpi);
}

Raster MakeRaster(const Drawing& drawing, const CairoFonts& fonts, double dpi) {
  const Surface surface = PaintedImage(drawing, fonts, dpi);
  const Pixels pixels = PixelsOf(surface.get());
  Raster raster{static_cast<int>(pixels.width), static_cast<int>(pixels.height), {}};
  raster.values.reserve(pixels.width * pixels.height);
  for (std::size_t row = 0; row < pixels.height; ++row) {
    const std::uint32_t* const begin = pixels.data + row * pixels.stride;
    raster.values.insert(raster.values.end(), begin, begin + pixels.width);
  }
  return raster;
}

namespace {

class CairoPdf final : public PdfDocument {
 public:
  explicit CairoPdf(const CairoFonts& fonts)
      : fonts_(fonts), surface_(cairo_pdf_surface_create_for_stream(Append, &bytes_, 1, 1)) {
    // The date is fixed, so that the same drawings have the same bytes.
    cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_CREATE_DATE, "2000-01-01T00:00:00Z");
  }

  void Add(const Drawing& page) override {
    if (!std::exchange(hasPages_, true))
      cairo_pdf_surface_set_metadata(surface_.get(), CAIRO_PDF_METADATA_TITLE, page.title.c_str());
    cairo_pdf_surface_set_size(surface_.get(), page.width, page.height);
    const Context cr(cairo_create(surface_.get()));
    Paint(cr.get(), page, fonts_);
    Check(cairo_status(cr.get()));
    cairo_show_page(cr.get());
  }

  std::string Finish() override {
    cairo_surface_finish(surface_.get());
    Check(cairo_surface_status(surface_.get()));
    return std::move(bytes_);
  }

 private:
  const CairoFonts& fonts_;
  std::string bytes_;  // The surface writes to it until it is destroyed.
  const Surface surface_;
  bool hasPages_ = false;
};

}  // namespace

std::unique_ptr<PdfDocument> NewPdf(const CairoFonts& fonts) { return std::make_unique<CairoPdf>(fonts); }

}  // namespace plotsmith::render

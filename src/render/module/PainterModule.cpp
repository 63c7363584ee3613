#include "render/Painter.h"
#include "render/cairo/CairoFonts.h"
#include "render/cairo/CairoPainter.h"
#include "render/module/Module.h"

namespace plotsmith::render {
namespace {

constexpr double kPointsPerInch = 72;

/// Whether the calling thread has called Measure.
thread_local bool measures = false;

/// Returns the fonts with which all threads measure. Finding a font takes longer than drawing a chart, so the
/// threads share the fonts and the measured texts.
const CairoFonts& SharedFonts() {
  static const CairoFonts fonts;
  return fonts;
}

/// Returns the fonts with which the calling thread paints. A thread that only paints has fonts of its own, so
/// that it doesn't wait for threads that measure.
const CairoFonts& FontsToPaintWith() {
  if (measures) return SharedFonts();
  thread_local const CairoFonts fonts;
  return fonts;
}

class CairoPainter final : public Painter {
 public:
  const TextMeasure& Measure() const override {
    measures = true;
    return SharedFonts();
  }
  Raster Rasterize(const Drawing& drawing, double scale) const override {
    return MakeRaster(drawing, FontsToPaintWith(), scale * kPointsPerInch);
  }
  std::string Png(const Drawing& drawing, double scale) const override {
    return MakePng(drawing, FontsToPaintWith(), scale * kPointsPerInch);
  }
  std::unique_ptr<PdfDocument> NewPdf() const override { return render::NewPdf(FontsToPaintWith()); }
};

}  // namespace
}  // namespace plotsmith::render

extern "C" {

const char* plotsmith_module_version() { return PLOTSMITH_VERSION; }

const plotsmith::render::Painter* plotsmith_render_painter() {
  static const plotsmith::render::CairoPainter painter;
  return &painter;
}
}

#include "render/module/Module.h"

#include <cmath>

#include "render/Painter.h"
#include "render/cairo/CairoPainter.h"
#include "render/cairo/Fonts.h"

namespace plotsmith::render {
namespace {

constexpr double kPointsPerInch = 72;

/// Returns the fonts of the calling thread.
const Fonts& FontsOfThread() {
  thread_local const Fonts fonts;
  return fonts;
}

class CairoPainter final : public Painter {
 public:
  const TextMeasure& Measure() const override { return FontsOfThread(); }
  bool HasFonts() const override { return Fonts::IsAnyInstalled(); }
  Raster Rasterize(const Drawing& drawing, double scale) const override {
    return MakeRaster(drawing, FontsOfThread(), scale * kPointsPerInch);
  }
  std::string Png(const Drawing& drawing, double scale) const override {
    return MakePng(drawing, FontsOfThread(), scale * kPointsPerInch);
  }
  std::unique_ptr<PdfDocument> NewPdf() const override { return render::NewPdf(FontsOfThread()); }
};

}  // namespace
}  // namespace plotsmith::render

extern "C" {

const char* plotsmith_render_version() { return PLOTSMITH_VERSION; }

const plotsmith::render::Painter* plotsmith_render_painter() {
  static const plotsmith::render::CairoPainter painter;
  return &painter;
}
}

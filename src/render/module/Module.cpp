#include "render/module/Module.h"

#include <cmath>

#include "render/Painter.h"
#include "render/cairo/CairoPainter.h"
#include "render/cairo/Fonts.h"

namespace plotsmith::render {
namespace {

constexpr double kPointsPerInch = 72;

class CairoPainter final : public Painter {
 public:
  const TextMeasure& Measure() const override { return fonts_; }
  bool HasFonts() const override { return Fonts::IsAnyInstalled(); }
  Raster Rasterize(const Drawing& drawing, double scale) const override {
    return MakeRaster(drawing, fonts_, scale * kPointsPerInch);
  }
  std::string Png(const Drawing& drawing, double scale) const override {
    return MakePng(drawing, fonts_, scale * kPointsPerInch);
  }
  std::string Pdf(const std::vector<Drawing>& pages) const override { return MakePdf(pages, fonts_); }

 private:
  Fonts fonts_;
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

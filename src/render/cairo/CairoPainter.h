#pragma once

#include <memory>
#include <span>
#include <string>

#include "render/Drawing.h"
#include "render/Painter.h"
#include "render/Raster.h"
#include "render/cairo/Fonts.h"

typedef struct _cairo cairo_t;

namespace plotsmith::render {

/// Paints a drawing; a unit of the context is a point.
void Paint(cairo_t* cr, const Drawing& drawing, const Fonts& fonts);

/// The bytes of a PNG picture on a white ground, the same on every run. A picture of more than a hundred
/// million pixels, or of none, is a std::length_error.
std::string MakePng(const Drawing& drawing, const Fonts& fonts, double dpi = 96);
/// The same picture as pixels.
Raster MakeRaster(const Drawing& drawing, const Fonts& fonts, double dpi = 96);
/// A document without a page. The fonts have to outlive it.
std::unique_ptr<PdfDocument> NewPdf(const Fonts& fonts);
/// The bytes of a PDF document with a page for each drawing, the same on every run.
std::string MakePdf(std::span<const Drawing> pages, const Fonts& fonts);

}  // namespace plotsmith::render

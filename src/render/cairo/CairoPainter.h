#pragma once

#include <memory>
#include <string>

#include "render/Drawing.h"
#include "render/Painter.h"
#include "render/Raster.h"
#include "render/cairo/CairoFonts.h"

typedef struct _cairo cairo_t;

namespace plotsmith::render {

/// Paints a drawing. A unit of the context must be a point.
void Paint(cairo_t* cr, const Drawing& drawing, const CairoFonts& fonts);

/// Returns the bytes of a PNG picture on a white background, which are the same on every run. Throws
/// std::length_error if the picture would have no pixel or more than a hundred million.
std::string MakePng(const Drawing& drawing, const CairoFonts& fonts, double dpi = 96);
/// Returns the pixels of the picture that MakePng encodes. Throws the same exception.
Raster MakeRaster(const Drawing& drawing, const CairoFonts& fonts, double dpi = 96);
/// Begins a PDF document without a page. `fonts` must outlive it. Its bytes are the same on every run.
std::unique_ptr<PdfDocument> NewPdf(const CairoFonts& fonts);

}  // namespace plotsmith::render

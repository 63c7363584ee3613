#pragma once

#include "render/Drawing.h"

typedef struct _cairo cairo_t;

namespace plotsmith::render {

/// Paints a PNG picture into its rectangle. A picture that can't be read is left out.
void PaintImage(cairo_t* cr, const ImageItem& image);

}  // namespace plotsmith::render

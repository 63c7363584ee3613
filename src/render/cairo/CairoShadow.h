#pragma once

#include "render/Drawing.h"

typedef struct _cairo cairo_t;

namespace plotsmith::render {

/// Paints a shadow. A soft edge is painted as pixels, even in a PDF document.
void PaintShadow(cairo_t* cr, const ShadowItem& item);

}  // namespace plotsmith::render

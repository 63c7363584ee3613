#pragma once

#include "render/Drawing.h"

typedef struct _cairo cairo_t;

namespace plotsmith::render {

/// Paints a shadow. A soft edge is made of pixels, also on a page.
void PaintShadow(cairo_t* cr, const ShadowItem& item);

}  // namespace plotsmith::render

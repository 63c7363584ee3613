#pragma once

#include "render/Drawing.h"

typedef struct _cairo cairo_t;

namespace plotsmith::render {

/// Makes an outline the current path.
void Trace(cairo_t* cr, const Path& path);

/// Makes a filling the source of what is painted next. `bounds` is what it fills. False for no filling.
bool SetSource(cairo_t* cr, const Fill& fill, const Rect& bounds);

}  // namespace plotsmith::render

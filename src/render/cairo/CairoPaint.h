#pragma once

#include "render/Drawing.h"

typedef struct _cairo cairo_t;

namespace plotsmith::render {

/// Sets a filling of `bounds` as the source of the next painting. Returns false if there is no filling.
bool SetSource(cairo_t* cr, const Fill& fill, const Rect& bounds);

}  // namespace plotsmith::render

#pragma once

#include <cairo.h>
#include <memory>

#include "render/Drawing.h"

namespace plotsmith::render {

/// Surfaces and contexts of Cairo that destroy themselves.
struct DestroySurface {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
struct DestroyContext {
  void operator()(cairo_t* cr) const { cairo_destroy(cr); }
};
using Surface = std::unique_ptr<cairo_surface_t, DestroySurface>;
using Context = std::unique_ptr<cairo_t, DestroyContext>;

/// Makes an outline the current path.
void Trace(cairo_t* cr, const Path& path);

/// Makes a filling the source of what is painted next. `bounds` is what it fills. False for no filling.
bool SetSource(cairo_t* cr, const Fill& fill, const Rect& bounds);

}  // namespace plotsmith::render

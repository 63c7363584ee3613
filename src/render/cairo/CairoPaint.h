#pragma once

#include <cairo.h>
#include <memory>

#include "render/Drawing.h"

namespace plotsmith::render {

/// Deletes a surface of Cairo.
struct DestroySurface {
  /// Releases the reference to the surface.
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
/// Deletes a context of Cairo.
struct DestroyContext {
  /// Releases the reference to the context.
  void operator()(cairo_t* cr) const { cairo_destroy(cr); }
};
/// A surface and a context of Cairo that are deleted automatically.
///@{
using Surface = std::unique_ptr<cairo_surface_t, DestroySurface>;
using Context = std::unique_ptr<cairo_t, DestroyContext>;
///@}

/// Makes a colour with its opacity the source of the next painting.
void SetColor(cairo_t* cr, const Color& color);

/// Makes an outline the current path.
void Trace(cairo_t* cr, const Path& path);

/// Makes a fill the source of the next painting. `bounds` is the rectangle around the filled path. Returns
/// false if there is no fill.
bool SetSource(cairo_t* cr, const Fill& fill, const Rect& bounds);

}  // namespace plotsmith::render

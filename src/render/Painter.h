#pragma once

#include <string>
#include <vector>

#include "render/Drawing.h"
#include "render/Raster.h"
#include "render/TextMeasure.h"

namespace plotsmith::render {

/// What needs a graphics library: measuring texts, and every format but SVG. The library takes longer to load
/// than the command takes to start, so it is behind this class and is loaded when it is wanted.
class Painter {
 public:
  virtual ~Painter() = default;

  virtual const TextMeasure& Measure() const = 0;
  /// Whether there is any font. Without one, texts are measured and painted as boxes or not at all.
  virtual bool HasFonts() const = 0;
  /// On a white ground; `scale` is pixels for a point. A picture of more than a hundred million pixels, or of
  /// none, is a std::length_error.
  virtual Raster Rasterize(const Drawing& drawing, double scale) const = 0;
  virtual std::string Png(const Drawing& drawing, double scale) const = 0;
  /// A page for each drawing, of its size.
  virtual std::string Pdf(const std::vector<Drawing>& pages) const = 0;
};

}  // namespace plotsmith::render

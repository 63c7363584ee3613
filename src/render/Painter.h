#pragma once

#include <memory>
#include <string>

#include "render/Drawing.h"
#include "render/Raster.h"
#include "render/TextMeasure.h"

namespace plotsmith::render {

/// A PDF document that is made page by page.
class PdfDocument {
 public:
  virtual ~PdfDocument() = default;

  /// Adds a page of the drawing's size. The title of the first page is the document's.
  virtual void Add(const Drawing& page) = 0;
  /// Ends the document and gives its bytes.
  virtual std::string Finish() = 0;
};

/// What needs a graphics library: measuring texts, and every format but SVG. The library takes longer to load
/// than the command takes to start, so it is behind this class and is loaded when it is wanted. Several
/// threads may paint at a time.
class Painter {
 public:
  virtual ~Painter() = default;

  /// The measure of this painter, for all threads.
  virtual const TextMeasure& Measure() const = 0;
  /// Whether there is any font. Without one, texts are measured and painted as boxes or not at all.
  virtual bool HasFonts() const = 0;
  /// On a white ground; `scale` is pixels for a point. A picture of more than a hundred million pixels, or of
  /// none, is a std::length_error.
  virtual Raster Rasterize(const Drawing& drawing, double scale) const = 0;
  virtual std::string Png(const Drawing& drawing, double scale) const = 0;
  virtual std::unique_ptr<PdfDocument> NewPdf() const = 0;
};

}  // namespace plotsmith::render
